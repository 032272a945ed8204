list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1,"one");
list.VALUEADD(2);
? list.VALUEPRESENTATIONGET(1);                      // expect: one
? list.ЗНАЧЕНИЕПРЕДСТАВЛЕНИЕПОЛУЧИТЬ(2)="";          // expect: ИСТИНА
