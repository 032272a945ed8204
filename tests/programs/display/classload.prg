// A class comes once; those that are there from the start count as loaded.
? CLASSLOADED("TEST");            // expect: ЛОЖЬ
? CLASSLOAD(" test ");            // expect: ИСТИНА
? КЛАССЗАГРУЖЕН("Тест");          // expect: ИСТИНА
? КЛАССЗАГРУЗИТЬ("ТЕСТ");         // expect: ИСТИНА
? CLASSLOAD("VALUELIST");         // expect: ИСТИНА
? CLASSLOAD("ТАБЛИЦАЗНАЧЕНИЙ");   // expect: ИСТИНА
? CLASSLOADED("  VALUELIST  ");   // expect: ИСТИНА
? CLASSLOADED("");                // expect: ЛОЖЬ
