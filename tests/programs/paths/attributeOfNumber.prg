x = 5;
? x.y;                  // expect status: 51
