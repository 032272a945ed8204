table = CREATEOBJECT("VALUETABLE");
// Without rows there is nothing to do wrong.
? table.SORT("");                           // expect: ИСТИНА
? table.SORT("x");                          // expect: ИСТИНА
table.COLUMNADD("a");
table.ROWADD();
? table.SORT("");                           // expect: ЛОЖЬ
? table.SORT("x");                          // expect: ЛОЖЬ
? table.SORT("-");                          // expect: ЛОЖЬ
? table.SORT("+");                          // expect: ЛОЖЬ
? table.SORT("--a");                        // expect: ЛОЖЬ
? table.SORT(" a");                         // expect: ЛОЖЬ
? table.SORT("a");                          // expect: ИСТИНА
