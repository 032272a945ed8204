? classload(1);                 // expect status: 33
