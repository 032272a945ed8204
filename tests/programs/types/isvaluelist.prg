? ISVALUELIST(CREATEOBJECT("VALUELIST"));         // expect: ИСТИНА
? ISVALUELIST(CREATEOBJECT("VALUETABLE"));        // expect: ЛОЖЬ
? ISVALUELIST(CONTEXTGET());                      // expect: ЛОЖЬ
? ISVALUELIST(5);                                 // expect: ЛОЖЬ
? ISVALUELIST("VALUELIST");                       // expect: ЛОЖЬ
? ЭТОСПИСОКЗНАЧЕНИЙ(CREATEOBJECT("СПИСОКЗНАЧЕНИЙ"));  // expect: ИСТИНА
