table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.COLUMNADD("b");
table.ROWADD();
? table.VALUESET(1,1,"x");                  // expect: ИСТИНА
? table.VALUESET(1,"B",1=2);                // expect: ИСТИНА
? table.VALUEGET(1,"a");                    // expect: x
? table.ЗНАЧЕНИЕПОЛУЧИТЬ(1,2);              // expect: ЛОЖЬ
? table.ЗНАЧЕНИЕУСТАНОВИТЬ(1.9,2.9,7);      // expect: ИСТИНА
? table.VALUEGET(1.1,2.1);                  // expect: 7
