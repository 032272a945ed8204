IF THEN x=2; ENDIF;             // expect status: 47
