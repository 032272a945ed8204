// A 1-based place, or 0. The start is a 0-based offset.
? FIND("abc","c");          // expect: 3
? FIND("abc","c",2);        // expect: 3
? FIND("abc","a",3);        // expect: 0
? FIND("abc","a",1);        // expect: 0
? FIND("abcabc","a",1);     // expect: 4
? FIND("abc","a",-5);       // expect: 1
? FIND("abc","c",99);       // expect: 0
? FIND("abc","x");          // expect: 0
? FIND("abc","abcd");       // expect: 0
? FIND("","a");             // expect: 0
? FIND("","");              // expect: 0
? FIND("abc","");           // expect: 1
? FIND("abc","b",1.9);      // expect: 2
? FIND("Abc","a");          // expect: 0
? НАЙТИ("привет","вет");    // expect: 4
? НАЙТИ("привет","и",3);    // expect: 0
