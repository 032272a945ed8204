table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("n");
FOR i=1 TO 20000 DO
    table.ROWADD();
    table.VALUESET(i,"n",20000-i);
ENDDO;
? table.SORT("n");                                      // expect: ИСТИНА
? table.VALUEGET(1,1);                                  // expect: 0
? table.VALUEGET(20000,1);                              // expect: 19999
