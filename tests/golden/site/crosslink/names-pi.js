crossLinkNames("pi",[
["Pim","pim",1],
]);
