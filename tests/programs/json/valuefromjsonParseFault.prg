v = VALUEFROMJSON('{"t": "NUM", "v": }');
// expect: 125 char :[}]
// expect: i=18 Error!!!  Read string =[] key : [v]
// expect status: 34
