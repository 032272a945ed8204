// A program that reaches its end has the value 1.
x = 5;
? x;                    // expect: 5
