table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.ROWADD();
table.VALUESET(1,1,2);
table.VALUESET(2,1,1);
table.ROWACTUALSET(1);
table.SORT("a");
? table.ROWACTUALGET();                     // expect: 1
? table.a;                                  // expect: 1
