FUNCTION find(n)
    FOR i=1 TO 10 DO
        FOR j=1 TO 10 DO
            IF (i*j)=n THEN RETURN i*100+j; ENDIF;
        ENDDO;
    ENDDO;
    RETURN "none";
ENDFUNCTION;
? find(6);              // expect: 106
? find(49);             // expect: 707
? find(11);             // expect: none
