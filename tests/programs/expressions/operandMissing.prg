? 1+;                   // expect status: 37
