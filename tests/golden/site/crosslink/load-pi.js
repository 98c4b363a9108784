crossLinks([
["pim","Pim","0012345678905.4"],
]);
