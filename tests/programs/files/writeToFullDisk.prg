// A disk without room shows only when the file is closed; that counts too.
? STRINGAPPENDTOFILE("x","/dev/full");
// expect: save: Ошибка записи файла [/dev/full]
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
? BASE64APPENDTOFILE("AA==","/dev/full");
// expect: save: Ошибка записи файла [/dev/full]
// trace:  func: fileWrite file: localFile.cpp
// expect: ЛОЖЬ
