crossLinkNames("br",[
["Olm Brandt","olm_brandt",1],
["Tess Bray","tess_bray",1],
]);
