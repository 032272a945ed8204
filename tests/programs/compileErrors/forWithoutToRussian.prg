ДЛЯ i=1 ЦИКЛ КОНЕЦЦИКЛА;        // expect status: 48
