// What cannot be written is told in a box and by the result; the file beside stays as it was.
STRINGAPPENDTOFILE("kept","beside.txt");
? STRINGAPPENDTOFILE("x","missing/a.txt");
// expect: save: Ошибка записи файла [missing/a.txt]
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
? BASE64APPENDTOFILE("AA==","beside.txt/a.bin");
// expect: save: Ошибка записи файла [beside.txt/a.bin]
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
? STRINGAPPENDTOFILE("x","data");
// expect: save: Ошибка записи файла [data]
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
? STRINGAPPENDTOFILE("x","");       // expect: ЛОЖЬ
? BASE64APPENDTOFILE("AA==","");    // expect: ЛОЖЬ
? STRINGFROMFILE("beside.txt");     // expect: kept
? PATHEXIST("missing");             // expect: ЛОЖЬ
