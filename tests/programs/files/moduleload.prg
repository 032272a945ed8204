// Functions and variables of a module stay in the context that called.
? MODULELOAD("data/modules/good.txt");      // expect: ИСТИНА
? twice(4);                                 // expect: 8
? привет();                                 // expect: привет
? loaded;                                   // expect: by the module
? МОДУЛЬЗАГРУЗИТЬ("  data/modules/good.txt  ");  // expect: ИСТИНА
