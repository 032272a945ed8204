// An object answers through its own method.
CLASSLOAD("TEST");
? STRING(CREATEOBJECT("TEST"));   // expect: объект тестового класса [ТЕСТ] c числом 12121212
