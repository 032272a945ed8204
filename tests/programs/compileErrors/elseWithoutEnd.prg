IF 1 THEN x=2; ELSE x=3;        // expect status: 45
