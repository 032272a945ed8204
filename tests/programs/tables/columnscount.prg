table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.COLUMNADD("a");
? table.COLUMNSCOUNT();                     // expect: 2
? table.КОЛОНКИКОЛИЧЕСТВО();                // expect: 2
