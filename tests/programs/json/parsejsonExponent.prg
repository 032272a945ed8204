l = PARSEJSON("[1, 2e5]");                                  // expect: Json pos :5( line:1, pos: 5)
// expect status: 34
