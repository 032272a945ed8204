l = PARSEJSON('{"key": yes}');
// expect: 121 char :[y]
// expect: i=11 Error!!!  Read string =[yes] key : [key]
// expect status: 34
