// The result stays the number 0, and the number of the current row stays too.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.ROWADD();
table.ROWACTUALSET(2);
? table.CLEAR();                            // expect: 0
? table.ROWSCOUNT();                        // expect: 0
? table.COLUMNSCOUNT();                     // expect: 0
? table.ROWACTUALGET();                     // expect: 2
? table.COLUMNNUMBERGET("a");               // expect: 0
table.COLUMNADD("b");
table.ROWADD();
? table.ОЧИСТИТЬ();                         // expect: 0
? table.ROWSCOUNT();                        // expect: 0
