crossLinkNames("oa",[
["Wim Oake","wim_oake",1],
]);
