ДЛЯ i=1 ПО 3 ЦИКЛ ? i;          // expect status: 44
