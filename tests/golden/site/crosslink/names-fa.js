crossLinkNames("fa",[
["Uta Falk","uta_falk",1],
]);
