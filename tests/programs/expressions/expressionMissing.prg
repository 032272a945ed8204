? ;                     // expect status: 37
