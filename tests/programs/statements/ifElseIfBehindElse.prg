// Behind ELSE no condition is read any more.
IF 1=2 THEN ? 1; ELSE ? 2; ELSEIF 1=1 THEN ? 3; ENDIF;      // expect status: 42
