? classload();                  // expect status: 31
