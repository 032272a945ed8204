? SQRT(16);                  // expect: 4
? SQRT(0);                   // expect: 0
? КОРЕНЬКВАДРАТНЫЙ(2.25);    // expect: 1.5
