crossLinkNames("de",[
["Rosa Dene","rosa_dene",1],
]);
