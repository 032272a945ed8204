list = CREATEOBJECT("VALUELIST");
list.VALUEADD("a");
list.VALUEADD("b");
? list.VALUEGET(1);                                  // expect: a
? list.ЗНАЧЕНИЕПОЛУЧИТЬ(2);                          // expect: b
// Positions lose their fraction.
? list.VALUEGET(1.99);                               // expect: a
? list.VALUEGET(2.5);                                // expect: b
