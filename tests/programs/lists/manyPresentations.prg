// Long lists are searched through a table; it follows every change.
list = CREATEOBJECT("VALUELIST");
FOR i=1 TO 3000 DO
    list.VALUEADD(i,STRING(i));
ENDDO;
sum = 0;
FOR i=1 TO 3000 DO
    sum = sum+list.VALUEGETBYPRESENTATION(STRING(i));
ENDDO;
? sum;                                                   // expect: 4501500
list.VALUEADD("last","3000");
? list.VALUEGETBYPRESENTATION("3000");                   // expect: 3000
list.VALUESETPRESENTATION(3000,"other");
? list.VALUEGETBYPRESENTATION("3000");                   // expect: last
list.VALUESETPRESENTATION(7,"3000");
? list.VALUEGETBYPRESENTATION("3000");                   // expect: 7
list.VALUEREMOVE(1);
? list.VALUEGETBYPRESENTATION("3000");                   // expect: 7
list.VALUEREMOVE(6);
? list.VALUEGETBYPRESENTATION("3000");                   // expect: last
list.VALUEINSERT(1,"first","3000");
? list.VALUEGETBYPRESENTATION("3000");                   // expect: first
? list.VALUEGETBYPRESENTATION("1")="";                   // expect: ИСТИНА
list.VALUEREMOVE(list.SIZE());
list.VALUEREMOVE(1);
? list.VALUEGETBYPRESENTATION("3000")="";                // expect: ИСТИНА
