crossLinks([
["wim_oake","Wim Oake","0012345678905.4"],
]);
