ИНАЧЕ                   // expect status: 0
