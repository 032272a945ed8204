// A column is read from the current row, in any case of letters.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("name");
table.COLUMNADD("Цена");
table.ROWADD();
table.ROWADD();
table.VALUESET(2,"name","two");
table.VALUESET(2,"цена",2.5);
table.ROWACTUALSET(2);
? table.NAME;                               // expect: two
? table.name;                               // expect: two
? table.цена;                               // expect: 2.5
table.ROWACTUALSET(1);
? table.name;                               // expect: 0
