table = CREATEOBJECT("VALUETABLE");
FOR i=1 TO 500 DO
    table.COLUMNADD("c"+STRING(i));
ENDDO;
table.COLUMNADD("C7");
table.ROWADD();
? table.COLUMNNUMBERGET("c7");              // expect: 7
? table.COLUMNNUMBERGET("C500");            // expect: 500
table.VALUESET(1,"c499",3);
? table.VALUEGET(1,499);                    // expect: 3
table.ROWACTUALSET(1);
? table.c499;                               // expect: 3
