crossLinkNames("si",[
["Siobhan O'Marra","siobhan_omarra",1],
]);
