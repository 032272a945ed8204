// Truncation toward zero.
? INT(1.9);      // expect: 1
? INT(-1.9);     // expect: -1
? INT(-0.5);     // expect: 0
? INT(7);        // expect: 7
? ЦЕЛ(2.5);      // expect: 2
