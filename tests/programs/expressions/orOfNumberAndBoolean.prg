b = 1=1;
? 1 OR b;                   // expect status: 50
