list = CREATEOBJECT("VALUELIST");
? list.VALUEADD(1.5);                                // expect: 1
? list.VALUEADD("text","p");                         // expect: 2
? list.ЗНАЧЕНИЕДОБАВИТЬ(1=1,"b");                    // expect: 3
? list.VALUEADD(list);                               // expect: 4
? list.VALUEGET(1);                                  // expect: 1.5
? list.VALUEGET(2);                                  // expect: text
? list.VALUEGET(3);                                  // expect: ИСТИНА
? list.VALUEGET(4);                                  // expect match: Список значений [4] *
? "["+list.VALUEPRESENTATIONGET(1)+"]";              // expect: []
? "["+list.VALUEPRESENTATIONGET(2)+"]";              // expect: [p]
list.CLEAR();
