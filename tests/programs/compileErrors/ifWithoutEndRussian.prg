ЕСЛИ 1 ТОГДА x=2;               // expect status: 45
