// What was put in is not looked at again, and hits do not overlap.
? STRINGPARTREPLACE("aaa","a","aa");      // expect: aaaaaa
? STRINGPARTREPLACE("aaaaa","aa","b");    // expect: bba
? STRINGPARTREPLACE("aab","ab","b");      // expect: ab
