// A part longer than a few units is found among near misses.
? FIND("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaab","aaaaaaaaaaaaaaaaaaaab");      // expect: 12
? FIND("aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa","aaaaaaaaaaaaaaaaaaaab");      // expect: 0
? FIND("abababababababababababababababac","abababababababababac");       // expect: 13
? STRINGPARTFIND("aaaaaaaaaaaaaaaaaaaaaaaaab","aaaaaaaaaaaaaaaaaaab",7);  // expect: 7
? STRINGPARTFIND("aaaaaaaaaaaaaaaaaaaaaaaaab","aaaaaaaaaaaaaaaaaaab",8);  // expect: 0
