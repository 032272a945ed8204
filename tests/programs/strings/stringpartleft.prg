// The first units of a text.
? STRINGPARTLEFT("abcdef",2);             // expect: ab
? STRINGPARTLEFT("abcdef",99);            // expect: abcdef
? STRINGPARTLEFT("abcdef",2.9);           // expect: ab
? "["+STRINGPARTLEFT("abcdef",0)+"]";     // expect: []
? "["+STRINGPARTLEFT("abcdef",-3)+"]";    // expect: []
? "["+STRINGPARTLEFT("",3)+"]";           // expect: []
? СТРОКАЧАСТЬЛЕВАЯ("привет",3);           // expect: при
