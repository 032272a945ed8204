FUNCTION f() ПРЕРВАТЬ; ENDFUNCTION;
FOR i=1 TO 3 DO
    ? i;                // expect: 1
    x = f();            // expect status: 19
ENDDO;
