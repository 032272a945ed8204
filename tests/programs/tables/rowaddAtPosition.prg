// A row goes before the position; at the last row or behind it, at 0 and below, it goes to the end.
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.VALUESET(1,1,"a");
table.ROWADD();
table.VALUESET(2,1,"b");
? table.ROWADD(2);                          // expect: 3
table.VALUESET(3,1,"c");
? table.ROWADD(1.5);                        // expect: 4
table.VALUESET(1,1,"d");
? table.ROWADD(0);                          // expect: 5
table.VALUESET(5,1,"e");
? table.РЯДДОБАВИТЬ(100);                   // expect: 6
table.VALUESET(6,1,"f");
? table.ROWADD(-3);                         // expect: 7
table.VALUESET(7,1,"g");
? table.ROWADD(3);                          // expect: 8
table.VALUESET(3,1,"h");
s = "";
FOR i=1 TO table.ROWSCOUNT() DO
    s = s+table.VALUEGET(i,1);
ENDDO;
? s;                                        // expect: dahbcefg
