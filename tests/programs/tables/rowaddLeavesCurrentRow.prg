// The number of the current row stays, so it comes to mean another row.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.ROWADD();
table.VALUESET(1,1,"first");
table.VALUESET(2,1,"second");
table.ROWACTUALSET(1);
? table.A;                                  // expect: first
? table.ROWADD(1);                          // expect: 3
? table.ROWACTUALGET();                     // expect: 1
? table.A;                                  // expect: 0
? table.VALUEGET(2,1);                      // expect: first
