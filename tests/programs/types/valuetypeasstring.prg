? VALUETYPEASSTRING(1);                           // expect: ЧИСЛО
? VALUETYPEASSTRING("1");                         // expect: СТРОКА
? VALUETYPEASSTRING(1=1);                         // expect: БУЛЕВО
? VALUETYPEASSTRING(CREATEOBJECT("VALUELIST"));   // expect: СПИСОКЗНАЧЕНИЙ
? ЗНАЧЕНИЕТИППОЛУЧИТЬКАКСТРОКА(CONTEXTGET());     // expect: КОНТЕКСТ
