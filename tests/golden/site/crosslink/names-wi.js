crossLinkNames("wi",[
["Wim Oake","wim_oake",1],
]);
