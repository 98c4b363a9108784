crossLinks([
["teld","Teld","0012345678905.4"],
["tess_bray","Tess Bray","0012345678905.4"],
]);
