// The facts of a sheet as lists; a cell without a format gives zeros, the font is not there.
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLTEXTSET(1,1,"text");
sheet.CELLFONTSET(1,1,"Arial");
sheet.ROWHEIGHTSET(1,33);
list = sheet.TOVALUELIST();
FOR i=1 TO list.SIZE() DO
    ? list.VALUEPRESENTATIONGET(i)+" "+VALUETYPEASSTRING(list.VALUEGET(i));
ENDDO;
// expect: type СТРОКА
// expect: columns СПИСОКЗНАЧЕНИЙ
// expect: rows СПИСОКЗНАЧЕНИЙ
// expect: cells СПИСОКЗНАЧЕНИЙ
? list.VALUEGET(1);                    // expect: SXL
columns = list.VALUEGET(2);
? columns.SIZE();                      // expect: 0
rows = list.VALUEGET(3);
? rows.SIZE();                         // expect: 0
cells = list.VALUEGET(4);
? cells.SIZE();                        // expect: 2
FOR i=1 TO 2 DO
    ? cells.VALUEPRESENTATIONGET(i);
    cell = cells.VALUEGET(i);
    line = "";
    FOR j=1 TO cell.SIZE() DO
        line = line+cell.VALUEPRESENTATIONGET(j)+"="+STRING(cell.VALUEGET(j))+" ";
    ENDDO;
    ? line;
ENDDO;
// expect: cell [0]
// expect: rowNumber=0 colNumber=0 text= details= colorBorder=0 colorFon=16777215 colorPattern=0 colorText=16777215 alignmentH=1 alignmentV=128 height=33 width=85
// expect: cell [1]
// expect: rowNumber=1 colNumber=1 text=text details= colorBorder=0 colorFon=0 colorPattern=0 colorText=0 alignmentH=0 alignmentV=0 height=0 width=0
