IF 1 THEN x=2; ELSEIF 2 x=3; ENDIF;     // expect status: 47
