// A word that ends another construct does not close a conditional: a condition is read behind it.
IF 1=2 THEN ? 1; ENDDO 1=1 THEN ? 2; ENDIF;     // expect: 2
IF 1=1 THEN ? 3; ENDDO 1=1 THEN ? 4; ENDIF;     // expect: 3
