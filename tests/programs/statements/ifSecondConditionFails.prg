IF 1=2 THEN ? 1; ELSEIF 1/0 THEN ? 2; ENDIF;        // expect status: 21
