? ISVALUETABLE(CREATEOBJECT("VALUETABLE"));       // expect: ИСТИНА
? ISVALUETABLE(CREATEOBJECT("VALUELIST"));        // expect: ЛОЖЬ
? ISVALUETABLE("x");                              // expect: ЛОЖЬ
? ЭТОТАБЛИЦАЗНАЧЕНИЙ(CREATEOBJECT("ТАБЛИЦАЗНАЧЕНИЙ"));  // expect: ИСТИНА
