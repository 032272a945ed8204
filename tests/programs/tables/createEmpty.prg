table = CREATEOBJECT("VALUETABLE");
? table.ROWSCOUNT();                        // expect: 0
? table.COLUMNSCOUNT();                     // expect: 0
? table.ROWACTUALGET();                     // expect: 0
? VALUETYPEASSTRING(table);                 // expect: ТАБЛИЦАЗНАЧЕНИЙ
other = СОЗДАТЬОБЪЕКТ("ТаблицаЗначений");
? other.РЯДЫКОЛИЧЕСТВО();                   // expect: 0
