// The length counts code units.
? STRINGLEN("");                // expect: 0
? STRINGLEN("abc");             // expect: 3
? СТРОКАДЛИНА("привет");        // expect: 6
