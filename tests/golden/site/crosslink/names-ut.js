crossLinkNames("ut",[
["Uta Falk","uta_falk",1],
]);
