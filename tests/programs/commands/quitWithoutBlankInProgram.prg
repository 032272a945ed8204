QUIT;                           // expect status: 37
