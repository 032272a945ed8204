// A text of another kind is told of and leaves the sheet; an object or array fills it anew.
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLTEXTSET(1,1,"stays");
? sheet.FROMJSON("5");                 // expect: Парсинг ERROR! Результат - не объект
// expect: ЛОЖЬ
? sheet.FROMJSON(" -1.5 // a number");    // expect: Парсинг ERROR! Результат - не объект
// expect: ЛОЖЬ
? sheet.FROMJSON('"cells"');           // expect: Парсинг ERROR! Результат - не объект
// expect: ЛОЖЬ
? sheet.FROMJSON("true");              // expect: Парсинг ERROR! Результат - не объект
// expect: ЛОЖЬ
? sheet.FROMJSON("null");              // expect: Парсинг ERROR! Результат - не объект
// expect: ЛОЖЬ
? sheet.FROMJSON("5 6");
// trace match: Json * func: scanStringParseJson file: localJsonReader.cpp
// expect: Парсинг ERROR!
// expect: ЛОЖЬ
? sheet.FROMJSON("TRUE");
// trace match: Json * func: scanStringParseJson file: localJsonReader.cpp
// expect: Парсинг ERROR!
// expect: ЛОЖЬ
? sheet.FROMJSON('"cells');
// trace match: Json * func: scanStringParseJson file: localJsonReader.cpp
// expect: Парсинг ERROR!
// expect: ЛОЖЬ
? sheet.CELLTEXTGET(1,1);              // expect: stays
? sheet.FROMJSON('{"type":"other","rows":[1]}');    // expect: ИСТИНА
? "["+sheet.CELLTEXTGET(1,1)+"]";      // expect: []
sheet.CELLTEXTSET(1,1,"goes");
? sheet.FROMJSON("[]");                // expect: ИСТИНА
? "["+sheet.CELLTEXTGET(1,1)+"]";      // expect: []
? sheet.FROMJSON('{"cells":7}');       // expect: ИСТИНА
// What is no cell is passed over, and so are details, sizes and what is unknown.
cells = '[5,"x",null,{"rowNumber":1,"colNumber":1,"text":"a","details":"d","height":9,"width":8,'
    +'"other":{"text":"b"}},[{"text":"c"}]]';
? sheet.FROMJSON('{"cells":'+cells+'}');    // expect: ИСТИНА
? sheet.CELLTEXTGET(1,1);              // expect: a
? sheet.COLUMNWIDTHGET(1);             // expect: 85
list = sheet.TOVALUELIST();
cells = list.VALUEGETBYPRESENTATION("cells");
? cells.SIZE();                        // expect: 3
? FIND(sheet.TOJSON(),'"details" : "d"');    // expect: 0
// The first list of that key counts; letters as \u.
? sheet.FROMJSON('{"cells":[{"text":"\u0416","rowNumber":1,"colNumber":2}],"cells":[]}');
// expect: ИСТИНА
? sheet.CELLTEXTGET(1,2);              // expect: Ж
