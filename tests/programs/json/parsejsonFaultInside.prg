// Each list around the faulty one tells of it.
l = PARSEJSON('{"a":
[1, [2 3]]}');
// expect: Json pos :13( line:2, pos: 7)
// expect: Json pos :13( line:2, pos: 7)
// expect: Json pos :13( line:2, pos: 7)
// expect status: 34
