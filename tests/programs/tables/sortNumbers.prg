// Equal rows keep their order, in both directions.
FUNCTION show(table)
    s = "";
    FOR i=1 TO table.ROWSCOUNT() DO
        s = s+STRING(table.VALUEGET(i,1))+table.VALUEGET(i,2)+" ";
    ENDDO;
    RETURN s;
ENDFUNCTION;
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("n");
table.COLUMNADD("t");
FOR i=1 TO 6 DO
    table.ROWADD();
    table.VALUESET(i,1,(i*2)%5);
    table.VALUESET(i,2,STRINGPARTRIGHT("abcdef",7-i));
    table.VALUESET(i,2,STRINGPARTLEFT(table.VALUEGET(i,2),1));
ENDDO;
? show(table);                              // expect: 2a 4b 1c 3d 0e 2f
? table.SORT("n");                          // expect: ИСТИНА
? show(table);                              // expect: 0e 1c 2a 2f 3d 4b
? table.SORT("-N");                         // expect: ИСТИНА
? show(table);                              // expect: 4b 3d 2a 2f 1c 0e
? table.СОРТИРОВАТЬ("+n");                  // expect: ИСТИНА
? show(table);                              // expect: 0e 1c 2a 2f 3d 4b
