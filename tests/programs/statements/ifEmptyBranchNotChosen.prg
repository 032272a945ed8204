IF 1=1 THEN ? 1; ELSE ENDIF;            // expect: 1
IF 1=2 THEN ENDIF;
? 2;                                    // expect: 2
