? 1
x = 2;                  // expect status: 42
