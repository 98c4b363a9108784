crossLinks([
["uta_falk","Uta Falk","0012345678905.4"],
]);
