ПОКА 1 x=2; КОНЕЦЦИКЛА;         // expect status: 43
