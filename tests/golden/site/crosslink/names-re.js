crossLinkNames("re",[
["Iva Renn","iva_renn",1],
["Rex","rex",1],
]);
