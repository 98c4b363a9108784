crossLinkNames("te",[
["Jonas Teld","jonas_teld",1],
["Teld","teld",1],
["Tess Bray","tess_bray",1],
]);
