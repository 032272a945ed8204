1a = 2;
? 1a;                   // expect status: 42
