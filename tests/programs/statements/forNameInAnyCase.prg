FOR Ёж=1 TO 2 DO ? ёЖ; ENDDO;
// expect: 1
// expect: 2
? ёж;                   // expect: 3
