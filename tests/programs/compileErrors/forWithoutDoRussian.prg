ДЛЯ i=1 ПО 3 x=i; КОНЕЦЦИКЛА;   // expect status: 43
