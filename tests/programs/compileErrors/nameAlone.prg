x;                      // expect status: 37
