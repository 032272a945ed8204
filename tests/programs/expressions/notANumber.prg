// Nothing equals what is not a number.
x = 10000000000*10000000000;
FOR i=1 TO 4 DO x = x*x; ENDDO;
n = x-x;
? n=n;                  // expect: ЛОЖЬ
? n<>n;                 // expect: ИСТИНА
? n<1;                  // expect: ЛОЖЬ
? n>1;                  // expect: ЛОЖЬ
// It is neither 0 nor below, so it chooses the first branch.
? n?1:1/0;              // expect: 1
