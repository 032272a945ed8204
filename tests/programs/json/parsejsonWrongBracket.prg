l = РАЗОБРАТЬJSON('{"a": 1]');    // expect: Json pos :7( line:1, pos: 7)
// expect status: 34
