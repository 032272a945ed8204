ДЛЯ i ПО 3 ЦИКЛ КОНЕЦЦИКЛА;     // expect status: 39
