l = PARSEJSON("[1,]");
// expect: 93 char :[]]
// expect: i=3 Error!!!  Read string =[] key : []
// expect status: 34
