a = (1=1);
? a AND !a;     // expect status: 37
