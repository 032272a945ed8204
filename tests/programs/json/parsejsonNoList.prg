l = PARSEJSON('"text"');                                    // expect: Json pos :0( line:1, pos: 0)
// expect status: 34
