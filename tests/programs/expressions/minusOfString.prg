? -"a";         // expect status: 50
