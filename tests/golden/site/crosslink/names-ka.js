crossLinkNames("ka",[
["Kai Lund","kai_lund",1],
]);
