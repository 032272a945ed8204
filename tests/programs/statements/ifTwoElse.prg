// A second ELSE adds a branch that is never reached.
IF 1=2 THEN ? 1; ELSE ? 2; ELSE ? 3; ENDIF;         // expect: 2
