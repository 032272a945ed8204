table = CREATEOBJECT("VALUETABLE");
table.ROWADD();
? table.ROWSCOUNT();                        // expect: 1
? table.РЯДЫКОЛИЧЕСТВО();                   // expect: 1
