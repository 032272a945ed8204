table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD(" a ");
? "["+table.COLUMNNAMEGET(1)+"]";           // expect: [ A ]
? table.COLUMNNUMBERGET("a");               // expect: 0
? table.COLUMNNUMBERGET(" a ");             // expect: 1
