VAR x;                  // expect status: 37
