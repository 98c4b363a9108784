crossLinks([
["rosa_dene","Rosa Dene","0012345678905.4"],
]);
