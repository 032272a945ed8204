// Texts compare by code units, a shorter one before those that go on from it.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("t");
FOR i=1 TO 6 DO
    table.ROWADD();
ENDDO;
table.VALUESET(1,1,"б");
table.VALUESET(2,1,"ab");
table.VALUESET(3,1,"Я");
table.VALUESET(4,1,"a");
table.VALUESET(5,1,"Z");
table.VALUESET(6,1,"ё");
? table.SORT("t");                          // expect: ИСТИНА
s = "";
FOR i=1 TO 6 DO
    s = s+table.VALUEGET(i,1)+" ";
ENDDO;
? s;                                        // expect: Z a ab Я б ё
