// A file that cannot be read is told in two lines and by the result.
? MODULELOAD("missing.txt");
// expect: Error!
// trace: Файл не найден. func: MODULELOAD file: localFileFunctions.cpp
// expect: ЛОЖЬ
? MODULELOAD("data");
// expect: Error!
// trace: Файл не найден. func: MODULELOAD file: localFileFunctions.cpp
// expect: ЛОЖЬ
