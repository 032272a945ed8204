// A number of 17 characters is more than the language takes.
l = PARSEJSON("[12345678901234567]");                       // expect: Json pos :18( line:1, pos: 18)
// expect status: 36
