crossLinks([
["mara_liv_okonski","Mara Liv Okonski","0012345678905.4"],
]);
