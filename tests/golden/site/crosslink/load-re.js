crossLinks([
["rex","Rex","0012345678905.4"],
]);
