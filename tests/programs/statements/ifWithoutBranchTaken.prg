IF 1=2 THEN ? 1; ENDIF;
IF 1=2 THEN ? 1; ELSEIF 2=3 THEN ? 2; ENDIF;
? "behind";             // expect: behind
