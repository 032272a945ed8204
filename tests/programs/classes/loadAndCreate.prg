? classloaded("TEST");          // expect: ЛОЖЬ
? classload("TEST");            // expect: ИСТИНА
? classload("ТЕСТ");            // expect: ИСТИНА
? classloaded("TEST");          // expect: ИСТИНА
? classloaded("тест");          // expect: ИСТИНА
? createobject("TEST");         // expect: объект тестового класса [ТЕСТ] c числом 12121212
? createobject("тест");         // expect: объект тестового класса [ТЕСТ] c числом 12121212
