// A thousand calls inside one another are no matter.
FUNCTION sum(n) IF n=0 THEN RETURN 0; ENDIF; RETURN n+sum(n-1); ENDFUNCTION;
? sum(1000);            // expect: 500500
