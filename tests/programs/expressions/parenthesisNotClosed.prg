? (1+2;                 // expect status: 41
