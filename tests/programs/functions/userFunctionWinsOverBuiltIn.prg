? abs(0-3);             // expect: 3
IF 1=1 THEN
    FUNCTION ABS(x) RETURN "mine"; ENDFUNCTION;
    ? abs(0-3);         // expect: mine
ENDIF;
? ABS(0-3);             // expect: mine
