x = 10000000000*10000000000;
FOR i=1 TO 4 DO x = x*x; ENDDO;
? x;                    // expect: inf
? 0-x;                  // expect: -inf
? x=x;                  // expect: ИСТИНА
? x>1;                  // expect: ИСТИНА
