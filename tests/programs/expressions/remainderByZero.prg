? 7%0;          // expect status: 21
