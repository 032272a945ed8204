table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.VALUESET(1,1,table);
table.ROWACTUALSET(1);
? table.a.a.a.ROWSCOUNT();                              // expect: 1
? table.a;                                              // expect match: Таблица значений [1:1] adr [0x*]
// Without this its last holder would be its own cell, and it would stay for ever.
table.CLEAR();
