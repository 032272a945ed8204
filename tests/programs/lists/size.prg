list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1);
list.VALUEADD("a");
? list.SIZE();                              // expect: 2
? list.КОЛИЧЕСТВО();                        // expect: 2
