crossLinks([
["kai_lund","Kai Lund","0012345678905.4"],
]);
