// A construct that follows makes the status whole again, and at the run the word has no effect.
? 1;                            // expect: 1
QUIT ;
IF 1=1 THEN ? 2; ENDIF;         // expect: 2
? 3;                            // expect: 3
