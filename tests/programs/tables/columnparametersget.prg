// A number gives the name, a name the number.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.COLUMNADD("b");
? table.COLUMNPARAMETERSGET(2);                     // expect: B
? table.COLUMNPARAMETERSGET("b");                   // expect: 2
? table.КОЛОНКАПАРАМЕТРЫПОЛУЧИТЬ(1);                // expect: A
? table.COLUMNPARAMETERSGET("c");                   // expect: 0
? "["+table.COLUMNPARAMETERSGET(0)+"]";             // expect: []
? "["+table.COLUMNPARAMETERSGET(3)+"]";             // expect: []
