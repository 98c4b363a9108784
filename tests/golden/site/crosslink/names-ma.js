crossLinkNames("ma",[
["Mara Liv Okonski","mara_liv_okonski",1],
["Siobhan O'Marra","siobhan_omarra",1],
]);
