FUNCTION even(n) IF n=0 THEN RETURN 1=1; ENDIF; RETURN odd(n-1); ENDFUNCTION;
FUNCTION odd(n) IF n=0 THEN RETURN 1=2; ENDIF; RETURN even(n-1); ENDFUNCTION;
? even(10);             // expect: ИСТИНА
? even(7);              // expect: ЛОЖЬ
