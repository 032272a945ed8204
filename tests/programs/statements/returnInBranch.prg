IF 1=1 THEN ? 1; RETURN 1; ENDIF;       // expect: 1
? 2;
