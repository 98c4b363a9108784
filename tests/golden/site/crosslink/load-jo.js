crossLinks([
["jonas_teld","Jonas Teld","0012345678905.4"],
]);
