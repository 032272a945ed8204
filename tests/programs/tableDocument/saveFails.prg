// A file that cannot be written gives false behind the writer's box, and stays as it was.
sheet = CREATEOBJECT("TABLEDOCUMENT");
? sheet.SAVE("no/such/folder.sxl");
// expect match: save: Ошибка записи файла [no/such/folder.sxl]*
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
