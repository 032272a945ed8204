FOR i=1 TO 3 DO ? i; ENDIF;     // expect status: 44
