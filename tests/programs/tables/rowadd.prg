table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
? table.ROWADD();                           // expect: 1
? table.РЯДДОБАВИТЬ();                      // expect: 2
? table.VALUEGET(2,1);                      // expect: 0
