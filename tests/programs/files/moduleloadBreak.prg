// A BREAK outside any loop leaves the module without a value.
? MODULELOAD("data/modules/break.txt");     // expect: ЛОЖЬ
