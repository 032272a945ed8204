// The first row decides. Behind a number, texts count as the numbers they begin with.
FUNCTION show(table)
    s = "";
    FOR i=1 TO table.ROWSCOUNT() DO
        s = s+STRING(table.VALUEGET(i,1))+" ";
    ENDDO;
    RETURN s;
ENDFUNCTION;
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("v");
FOR i=1 TO 4 DO
    table.ROWADD();
ENDDO;
table.VALUESET(1,1,9);
table.VALUESET(2,1,"10 pieces");
table.VALUESET(3,1,1=1);
table.VALUESET(4,1,"none");
table.SORT("v");
? show(table);                              // expect: none ИСТИНА 9 10 pieces
// A text is first now: the rest compare as texts.
table.SORT("v");
? show(table);                              // expect: 10 pieces 9 none ИСТИНА
