c = contextget();
? c.nobody;                     // expect status: 10
