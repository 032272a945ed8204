table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.COLUMNADD("b");
table.ROWADD();
? table.TOSTRING();                         // expect match: Таблица значений [1:2] adr [0x*]
? table.СТРОКА();                           // expect match: Таблица значений [1:2] adr [0x*]
? table;                                    // expect match: Таблица значений [1:2] adr [0x*]
