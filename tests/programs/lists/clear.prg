list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1,"one");
list.VALUEADD(list);
? list.CLEAR();                             // expect: 1
? list.SIZE();                              // expect: 0
list.VALUEADD(2);
? list.ОЧИСТИТЬ();                          // expect: 1
? list.SIZE();                              // expect: 0
? list.VALUEGETBYPRESENTATION("one")="";    // expect: ИСТИНА
