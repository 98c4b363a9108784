crossLinkNames("ol",[
["Olm Brandt","olm_brandt",1],
]);
