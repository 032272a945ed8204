// What a saved file keeps and what it does not.
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CLEAR();
sheet.CELLTEXTSET(1,1,"Цена");
sheet.CELLTEXTSET(2,1,"two"+CHR(10)+"lines / 'x'");
sheet.CELLTEXTSET(2,2,"[a] {b}");
sheet.CELLFONTSET(1,1,"Arial",12,15);
sheet.CELLCOLORSET(1,1,1,2,3,4);
sheet.CELLALIGMENTSET(1,1,4,32);
sheet.COLUMNWIDTHSET(1,200);
sheet.ROWHEIGHTSET(1,33);
? sheet.SAVE("report.sxl");                   // expect: ИСТИНА
? STRINGFROMFILE("report.sxl")=sheet.TOJSON();    // expect: ИСТИНА
? FIND(sheet.TOJSON(),'"cloumns" : []')>0;    // expect: ИСТИНА
other = CREATEOBJECT("TABLEDOCUMENT");
other.CELLTEXTSET(9,9,"gone");
other.COLUMNWIDTHSET(2,17);
? other.ЗАГРУЗИТЬ("report.sxl");              // expect: ИСТИНА
? "["+other.CELLTEXTGET(9,9)+"]";             // expect: []
? other.CELLTEXTGET(1,1);                     // expect: Цена
? other.CELLTEXTGET(2,1)=sheet.CELLTEXTGET(2,1);    // expect: ИСТИНА
// Widths and heights are not in the file.
? other.COLUMNWIDTHGET(1);                    // expect: 85
? other.COLUMNWIDTHGET(2);                    // expect: 85
? other.ROWHEIGHTGET(1);                      // expect: 20
// Brackets come back with the backslash that was written before them.
? other.CELLTEXTGET(2,2);                     // expect: \[a\] \{b\}
// The default cell comes back as one more, each time; fonts, colours and alignment are the same.
FUNCTION cellsCount(of)
    list = of.TOVALUELIST();
    cells = list.VALUEGETBYPRESENTATION("cells");
    RETURN cells.SIZE();
ENDFUNCTION;
? cellsCount(sheet);                          // expect: 4
? cellsCount(other);                          // expect: 5
first = '"rowNumber" : 1';
from = sheet.TOJSON();
to = other.TOJSON();
from = STRINGPARTRIGHT(from,STRINGLEN(from)-FIND(from,first));
to = STRINGPARTRIGHT(to,STRINGLEN(to)-FIND(to,first));
length = FIND(from,"}");
? STRINGPARTLEFT(from,length)=STRINGPARTLEFT(to,length);    // expect: ИСТИНА
? other.ЗАПИСАТЬ("report.sxl");               // expect: ИСТИНА
? other.LOAD("report.sxl");                   // expect: ИСТИНА
? cellsCount(other);                          // expect: 6
? sheet.SAVE("");                             // expect: ЛОЖЬ
