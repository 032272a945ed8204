;                       // expect status: 37
