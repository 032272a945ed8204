a = 1;
b = 2;
IF a=1 THEN
    IF b=1 THEN
        ? "1 1";
    ELSE
        IF b=2 THEN ? "1 2"; ENDIF;     // expect: 1 2
    ENDIF;
ELSE
    ? "other";
ENDIF;
