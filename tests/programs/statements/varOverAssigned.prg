x = 1;
ПЕРЕМЕННАЯ x = 2;       // expect status: 53
