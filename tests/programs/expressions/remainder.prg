// Both operands are rounded to the nearest whole number first; the sign is that of the first.
? 7%4;          // expect: 3
? 7.6%2.4;      // expect: 0
? -7%4;         // expect: -3
? 7%(-4);       // expect: 3
? 2.5%2;        // expect: 0
? 3.5%3;        // expect: 1
? 0%5;          // expect: 0
