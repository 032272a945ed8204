// Every occurrence from the left, or as many as the limit says; 0 means all.
? STRINGPARTREPLACE("abcabc","b","X");          // expect: aXcaXc
? STRINGPARTREPLACE("abcabc","b","X",1);        // expect: aXcabc
? STRINGPARTREPLACE("abcabc","b","X",0);        // expect: aXcaXc
? STRINGPARTREPLACE("abcabc","b","X",9);        // expect: aXcaXc
? STRINGPARTREPLACE("abcabc","b","");           // expect: acac
? STRINGPARTREPLACE("abcabc","x","Y");          // expect: abcabc
? STRINGPARTREPLACE("ab","abc","Y");            // expect: ab
? STRINGPARTREPLACE("abc","abc","Y");           // expect: Y
? "["+STRINGPARTREPLACE("","a","Y")+"]";        // expect: []
? СТРОКАЧАСТЬЗАМЕНИТЬ("привет","ив","-");       // expect: пр-ет
