crossLinkNames("iv",[
["Iva Renn","iva_renn",1],
]);
