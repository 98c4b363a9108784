crossLinkNames("li",[
["Mara Liv Okonski","mara_liv_okonski",1],
]);
