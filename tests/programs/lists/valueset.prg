// A position that is not there answers false and is no fault of the program.
list = CREATEOBJECT("VALUELIST");
list.VALUEADD(1,"p");
? list.VALUESET(1,"new");                            // expect: ИСТИНА
? list.VALUEGET(1);                                  // expect: new
? list.VALUEPRESENTATIONGET(1);                      // expect: p
? list.ЗНАЧЕНИЕУСТАНОВИТЬ(1.7,2);                    // expect: ИСТИНА
? list.VALUEGET(1);                                  // expect: 2
? list.VALUESET(0,5);                                // expect: ЛОЖЬ
? list.VALUESET(2,5);                                // expect: ЛОЖЬ
? list.VALUESET(-1,5);                               // expect: ЛОЖЬ
? list.VALUEGET(1);                                  // expect: 2
? list.VALUESET(1,list.VALUEGET(1));                 // expect: ИСТИНА
? list.VALUEGET(1);                                  // expect: 2
