list = CREATEOBJECT("VALUELIST");
FOR i=1 TO 4 DO
    list.VALUEADD(i,STRING(i));
ENDDO;
? list.VALUEREMOVE(2);                               // expect: 1
? list.ЗНАЧЕНИЕУДАЛИТЬ(3);                           // expect: 1
? list.SIZE();                                       // expect: 2
? list.VALUEGET(1);                                  // expect: 1
? list.VALUEGET(2);                                  // expect: 3
? list.VALUEPRESENTATIONGET(2);                      // expect: 3
