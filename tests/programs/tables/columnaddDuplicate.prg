// A name may stand twice; the first column of the name is found.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
? table.COLUMNADD("A");                     // expect: 2
table.ROWADD();
table.VALUESET(1,2,"second");
table.VALUESET(1,"a","first");
? table.VALUEGET(1,1);                      // expect: first
? table.VALUEGET(1,2);                      // expect: second
? table.COLUMNNUMBERGET("a");               // expect: 1
