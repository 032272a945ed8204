IF 1 THEN x=2; ENDIF    // expect status: 42
y = 1;
