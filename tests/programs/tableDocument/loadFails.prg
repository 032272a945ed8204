// A sheet that cannot be loaded stays as it was.
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLTEXTSET(1,1,"stays");
? sheet.LOAD("missing.sxl");
// expect: Файл не найден.
// expect: ЛОЖЬ
? sheet.LOAD("");
// expect: Файл не найден.
// expect: ЛОЖЬ
STRINGAPPENDTOFILE('{"cells":[','broken.sxl');
? sheet.LOAD("broken.sxl");
// trace match: Json * func: scanStringParseJson file: localJsonReader.cpp
// expect: Парсинг ERROR!
// expect: Error load TABLEDOCUMENT!
// expect: ЛОЖЬ
STRINGAPPENDTOFILE("5","number.sxl");
? sheet.LOAD("number.sxl");
// expect: Парсинг ERROR! Результат - не объект
// expect: Error load TABLEDOCUMENT!
// expect: ЛОЖЬ
STRINGAPPENDTOFILE("","empty.sxl");
? sheet.LOAD("empty.sxl");
// trace match: Json * func: scanStringParseJson file: localJsonReader.cpp
// expect: Парсинг ERROR!
// expect: Error load TABLEDOCUMENT!
// expect: ЛОЖЬ
? sheet.CELLTEXTGET(1,1);      // expect: stays
