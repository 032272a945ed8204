WHILE 1 DO x=2; ENDDO   // expect status: 42
y = 1;
