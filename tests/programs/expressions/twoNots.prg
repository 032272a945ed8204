? !!(1=1);      // expect status: 37
