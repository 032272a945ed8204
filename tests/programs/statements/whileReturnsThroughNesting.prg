// A RETURN leaves loops and conditionals at every depth, in the function only.
FUNCTION find(n)
    WHILE 1 DO
        FOR i=1 TO 9 DO
            IF i=n THEN IF 1 THEN RETURN i*10; ENDIF; ELSE m=i; ENDIF;
        ENDDO;
        BREAK;
    ENDDO;
ENDFUNCTION;
FOR k=8 TO 10 DO ? find(k); ENDDO;
// expect: 80
// expect: 90
// expect: 1
