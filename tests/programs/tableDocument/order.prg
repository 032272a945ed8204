// The text has the cells row by row, in whatever order they were set.
FUNCTION cellsOf(sheet)
    list = sheet.TOVALUELIST();
    cells = list.VALUEGETBYPRESENTATION("cells");
    line = "";
    FOR i=1 TO cells.SIZE() DO
        cell = cells.VALUEGET(i);
        line = line+STRING(cell.VALUEGETBYPRESENTATION("rowNumber"))+":"
            +STRING(cell.VALUEGETBYPRESENTATION("colNumber"))
            +cell.VALUEGETBYPRESENTATION("text")+" ";
    ENDDO;
    RETURN line;
ENDFUNCTION;
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLTEXTSET(2,2,"d");
sheet.CELLTEXTSET(1,2,"b");
sheet.CELLTEXTSET(2,1,"c");
sheet.CELLTEXTSET(1,1,"a");
sheet.CELLTEXTSET(10,1,"e");
sheet.CELLTEXTSET(1,3,"");
? cellsOf(sheet);    // expect: 0:0 1:1a 1:2b 1:3 2:1c 2:2d 10:1e
// Every setter makes the cell.
sheet.CLEAR();
sheet.CELLFONTSET(3,1,"");
sheet.CELLCOLORSET(2,1,0);
sheet.CELLALIGMENTSET(1,1,4);
sheet.CELLPIXMAPASBASE64SET(4,1,"");
? cellsOf(sheet);    // expect: 0:0 1:1 2:1 3:1 4:1
// Cells that were read keep their order, and a lookup gives the first of a place. A new one goes
// before the first that stands behind its place.
json = '{"cells":[{"rowNumber":5,"colNumber":1,"text":"x"},'
    +'{"rowNumber":2,"colNumber":1,"text":"y"},'
    +'{"rowNumber":5,"colNumber":1,"text":"z"}]}';
? sheet.FROMJSON(json);           // expect: ИСТИНА
? cellsOf(sheet);                 // expect: 0:0 5:1x 2:1y 5:1z
? sheet.CELLTEXTGET(5,1);         // expect: x
sheet.CELLTEXTSET(5,1,"changed");
sheet.CELLTEXTSET(4,1,"new");
sheet.CELLTEXTSET(1,1,"first");
sheet.CELLTEXTSET(6,1,"last");
? cellsOf(sheet);                 // expect: 0:0 4:1new 5:1changed 1:1first 2:1y 5:1z 6:1last
