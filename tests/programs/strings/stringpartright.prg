// The last units of a text.
? STRINGPARTRIGHT("abcdef",2);            // expect: ef
? STRINGPARTRIGHT("abcdef",99);           // expect: abcdef
? "["+STRINGPARTRIGHT("abcdef",0)+"]";    // expect: []
? "["+STRINGPARTRIGHT("abcdef",-3)+"]";   // expect: []
? СТРОКАЧАСТЬПРАВАЯ("привет",3);          // expect: вет
