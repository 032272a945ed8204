list = CREATEOBJECT("VALUELIST");
? list.VALUESETBYPRESENTATION(1,"a");                        // expect: 1
? list.VALUESETBYPRESENTATION(2,"b");                        // expect: 2
? list.ЗНАЧЕНИЕУСТАНОВИТЬПОПРЕДСТАВЛЕНИЮ("one","a");         // expect: 1
? list.SIZE();                                               // expect: 2
? list.VALUEGET(1);                                          // expect: one
list.VALUEADD(3,"b");
? list.VALUESETBYPRESENTATION("two","b");                    // expect: 2
? list.VALUEGET(3);                                          // expect: 3
