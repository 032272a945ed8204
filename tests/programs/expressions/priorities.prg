// Each operation has a priority of its own: + outranks -, * outranks % and /, equal ones go from the left.
? 1-2+3;        // expect: -4
? 10-2-3;       // expect: 5
? 2+3*4;        // expect: 14
? 2*3+4;        // expect: 10
? 8/2*4;        // expect: 1
? 100/10/2;     // expect: 5
? 7%4*2;        // expect: 7
? 8/6%4;        // expect: 4
? 2*3%4;        // expect: 2
? 10-3%2;       // expect: 9
? 20-8/4+2;     // expect: 16
? 2+6/3-1;      // expect: 3
? 7-2*3-1;      // expect: 0
? (1-2)+3;      // expect: 2
? (8/2)*4;      // expect: 16
