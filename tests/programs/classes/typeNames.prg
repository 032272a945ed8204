x = classload("TEST");
? valuetypeasstring(1);                         // expect: ЧИСЛО
? valuetypeasstring("1");                       // expect: СТРОКА
? valuetypeasstring(1=1);                       // expect: БУЛЕВО
? valuetypeasstring(createobject("TEST"));      // expect: ТЕСТ
? valuetypeasstring(contextget());              // expect: КОНТЕКСТ
