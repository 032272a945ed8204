table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("name");
table.COLUMNADD("Ёлка");
? table.COLUMNNUMBERGET("NAME");            // expect: 1
? table.COLUMNNUMBERGET("Name");            // expect: 1
? table.КОЛОНКАНОМЕРПОЛУЧИТЬ("ёлка");       // expect: 2
? table.COLUMNNUMBERGET("other");           // expect: 0
? table.COLUMNNUMBERGET("");                // expect: 0
