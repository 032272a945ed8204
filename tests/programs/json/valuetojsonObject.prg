// A class without the method TOJSON is written as its text.
CLASSLOAD("TEST");
t = CREATEOBJECT("TEST");
? VALUETOJSON(t);
// expect: {"t": "OBJ","tN": "TEST","vP": "объект тестового класса \[ТЕСТ\] c числом 12121212","v": "объект тестового класса \[ТЕСТ\] c числом 12121212"}
t = CREATEOBJECT("VALUETABLE");
? VALUETOJSON(t);
// expect match: {"t": "OBJ","tN": "VALUETABLE","vP": "Таблица значений \[0:0\] adr \[0x*\] ","v": "Таблица значений \[0:0\] adr \[0x*\] "}
