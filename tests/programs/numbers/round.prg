// Halves go away from zero.
? ROUND(2.5);             // expect: 3
? ROUND(-2.5);            // expect: -3
? ROUND(2.4);             // expect: 2
? ROUND(1234.567,2)=1234.57;   // expect: ИСТИНА
? ROUND(1234.567,-2);     // expect: 1200
? ROUND(2.5,0);           // expect: 3
? ОКР(0.5);               // expect: 1
