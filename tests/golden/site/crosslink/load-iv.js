crossLinks([
["iva_renn","Iva Renn","0012345678905.4"],
]);
