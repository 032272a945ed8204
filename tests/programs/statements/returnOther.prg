RETURN 2;               // expect status: 58
