// expect:  Ошибка считывания аргумента !!!
// expect: FUNCTION f(a,
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace: line: 7 pos: 13 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 16
FUNCTION f(a,
