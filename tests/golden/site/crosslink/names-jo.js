crossLinkNames("jo",[
["Jonas Teld","jonas_teld",1],
]);
