table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.COLUMNADD("b");
? table.COLUMNNAMEGET(1);                   // expect: A
? table.КОЛОНКАИМЯПОЛУЧИТЬ(2.9);            // expect: B
