// The file is opened when the program is compiled: nothing runs.
? "never";
DO "missing.prg";               // expect status: 23
// expect: Error!
// expect: Файл не найден.
// expect:  Ошибка компиляции запрограммированной команды (оператора) !!!
// expect: DO "missing.prg";               // expect status: 23
// expect: Файл не найден.
