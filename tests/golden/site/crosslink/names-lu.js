crossLinkNames("lu",[
["Kai Lund","kai_lund",1],
]);
