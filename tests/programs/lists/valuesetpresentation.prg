list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1,"a");
list.VALUEADD(2,"a");
? list.VALUESETPRESENTATION(1,"b");                          // expect: ИСТИНА
? list.VALUEGETBYPRESENTATION("a");                          // expect: 2
? list.VALUEGETBYPRESENTATION("b");                          // expect: 1
? list.ЗНАЧЕНИЕУСТАНОВИТЬПРЕДСТАВЛЕНИЕ(2.5,"c");             // expect: ИСТИНА
? list.VALUEPRESENTATIONGET(2);                              // expect: c
? list.VALUESETPRESENTATION(0,"x");                          // expect: ЛОЖЬ
? list.VALUESETPRESENTATION(3,"x");                          // expect: ЛОЖЬ
