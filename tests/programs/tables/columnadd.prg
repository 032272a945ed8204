table = CREATEOBJECT("VALUETABLE");
table.ROWADD();
? table.COLUMNADD("name");                  // expect: 1
? table.КОЛОНКАДОБАВИТЬ("цена");            // expect: 2
? table.COLUMNNAMEGET(1);                   // expect: NAME
? table.COLUMNNAMEGET(2);                   // expect: ЦЕНА
// Rows that were there get a cell with the number 0.
? table.VALUEGET(1,2);                      // expect: 0
