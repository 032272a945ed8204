// Colours by number and by name; what is left out or -1 stays.
FUNCTION colorsOf(sheet)
    list = sheet.TOVALUELIST();
    cells = list.VALUEGETBYPRESENTATION("cells");
    cell = cells.VALUEGET(2);
    line = "";
    FOR i=5 TO 10 DO
        line = line+STRING(cell.VALUEGET(i))+" ";
    ENDDO;
    RETURN line;
ENDFUNCTION;
sheet = CREATEOBJECT("TABLEDOCUMENT");
? sheet.CELLCOLORSET(1,1,255);                   // expect: 1
? colorsOf(sheet);                               // expect: 255 16777215 0 0 1 128
? sheet.ЯЧЕЙКАЦВЕТУСТАНОВИТЬ(1,1,"Красный","жёлтый",1,"gray");    // expect: 1
? colorsOf(sheet);                               // expect: 16711680 16776960 1 10526884 1 128
sheet.CELLCOLORSET(1,1,-1,-1,2);
? colorsOf(sheet);                               // expect: 16711680 16776960 2 10526884 1 128
sheet.CELLCOLORSET(1,1,-7,-1,-1,0);
? colorsOf(sheet);                               // expect: 16711680 16776960 2 0 1 128
// A name of no colour is black; magenta is the toolkit's, whatever stands beside its name.
sheet.CELLCOLORSET(1,1,"no colour","MAGENTA",0.6,99999999999);
? colorsOf(sheet);                               // expect: 0 16711935 1 2147483647 1 128
? sheet.CELLALIGMENTSET(1,1,2);                  // expect: 1
? colorsOf(sheet);                               // expect: 0 16711935 1 2147483647 2 128
? sheet.ЯЧЕЙКАВЫРАВНИВАНИЕУСТАНОВИТЬ(1,1,-1,32);    // expect: 1
? colorsOf(sheet);                               // expect: 0 16711935 1 2147483647 2 32
sheet.CELLALIGMENTSET(1,1,0,0);
? colorsOf(sheet);                               // expect: 0 16711935 1 2147483647 0 0
