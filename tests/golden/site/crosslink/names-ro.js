crossLinkNames("ro",[
["Rosa Dene","rosa_dene",1],
]);
