IF 1 THEN; x=2; ENDIF;  // expect status: 37
