// A sign binds to the first operand alone.
a = 2;
b = 3;
? -2*3;         // expect: -6
? 2*(-3);       // expect: -6
? -a*b;         // expect: -6
? -a+b;         // expect: 1
? -(a+b);       // expect: -5
? - 5;          // expect: -5
? -2-(-2);      // expect: 0
? -0;           // expect: 0
? (-1);         // expect: -1
? 1?-2:-3;      // expect: -2
