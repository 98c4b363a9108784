crossLinks([
["olm_brandt","Olm Brandt","0012345678905.4"],
]);
