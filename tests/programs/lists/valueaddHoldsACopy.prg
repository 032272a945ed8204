list = CREATEOBJECT("VALUELIST");
x = 1;
list.VALUEADD(x);
x = 2;
? list.VALUEGET(1);                                  // expect: 1
y = list.VALUEGET(1);
y = 3;
? list.VALUEGET(1);                                  // expect: 1
