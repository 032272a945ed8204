ПЕРЕМЕННАЯ x;           // expect status: 37
