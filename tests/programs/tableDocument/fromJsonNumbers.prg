// Rows and columns that none can have count as 0, where no cell is found.
FUNCTION placesOf(sheet)
    list = sheet.TOVALUELIST();
    cells = list.VALUEGETBYPRESENTATION("cells");
    line = "";
    FOR i=2 TO cells.SIZE() DO
        cell = cells.VALUEGET(i);
        line = line+STRING(cell.VALUEGET(1))+":"+STRING(cell.VALUEGET(2))+" ";
    ENDDO;
    RETURN line;
ENDFUNCTION;
FUNCTION cellOf(row, column)
    RETURN '{"rowNumber":'+row+',"colNumber":'+column+',"text":"x"}';
ENDFUNCTION;
sheet = CREATEOBJECT("TABLEDOCUMENT");
json = '{"cells":['+cellOf("-1","1")+","+cellOf("1.5","2.4")+","+cellOf("4294967295","4294967295")
    +","+cellOf("4294967296","1")+","+cellOf("1","9999999999999999")+","+cellOf('"7"','"no"')
    +","+cellOf("true","null")+","+cellOf("[]","{}")+"]}";
? sheet.FROMJSON(json);                        // expect: ИСТИНА
? placesOf(sheet);
// expect: 0:1 2:2 4294967295:4294967295 0:1 1:0 7:0 1:0 0:0
? sheet.CELLTEXTGET(4294967295,4294967295);    // expect: x
? sheet.CELLTEXTGET(2,2);                      // expect: x
? "["+sheet.CELLTEXTGET(1,1)+"]";              // expect: []
