? --2;          // expect status: 37
