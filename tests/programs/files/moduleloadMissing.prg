// A file that cannot be read is told in two lines and by the result.
? MODULELOAD("missing.txt");
// expect: Error!
// expect: Файл не найден.
// expect: ЛОЖЬ
? MODULELOAD("data");
// expect: Error!
// expect: Файл не найден.
// expect: ЛОЖЬ
