// A 1-based place, or 0. The start is 1-based; up to 1 it means the beginning.
? STRINGPARTFIND("abc","c");        // expect: 3
? STRINGPARTFIND("abc","c",2);      // expect: 3
? STRINGPARTFIND("abcabc","a",2);   // expect: 4
? STRINGPARTFIND("abc","a",1);      // expect: 1
? STRINGPARTFIND("abc","a",0);      // expect: 1
? STRINGPARTFIND("abc","a",-0.5);   // expect: 1
? STRINGPARTFIND("abc","c",3);      // expect: 3
? STRINGPARTFIND("abc","c",4);      // expect: 0
? STRINGPARTFIND("abc","x");        // expect: 0
? STRINGPARTFIND("ab","abc");       // expect: 0
? STRINGPARTFIND("","a");           // expect: 0
? СТРОКАЧАСТЬНАЙТИ("привет","вет",2);  // expect: 4
