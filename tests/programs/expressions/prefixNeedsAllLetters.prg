// NO and Н alone are names.
NO = 1;
Н = 2;
N = 3;
? NO;           // expect: 1
? Н;            // expect: 2
? N;            // expect: 3
? NO+Н;         // expect: 3
