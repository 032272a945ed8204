// An empty program has the value 1.
? MODULELOAD("data/modules/empty.txt");     // expect: ИСТИНА
