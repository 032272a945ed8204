list = CREATEOBJECT("VALUELIST");
? list.VALUEADD(1,"p",2,list,"q");                   // expect: 1
? list.VALUEPRESENTATIONGET(1);                      // expect: p
