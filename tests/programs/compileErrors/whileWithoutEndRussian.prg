ПОКА 1 ЦИКЛ x=2;                // expect status: 44
