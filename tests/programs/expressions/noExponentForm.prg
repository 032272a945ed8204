? 1e5;                  // expect status: 42
