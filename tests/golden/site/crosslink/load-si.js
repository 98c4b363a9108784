crossLinks([
["siobhan_omarra","Siobhan O'Marra","0012345678905.4"],
]);
