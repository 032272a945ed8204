FOR i=1 TO 3 DO ? i;            // expect status: 44
