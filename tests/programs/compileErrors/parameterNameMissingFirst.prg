ФУНКЦИЯ f(,a) ВОЗВРАТ 1; КОНЕЦФУНКЦИИ;
// expect:  Ошибка считывания аргумента !!!
// expect: ФУНКЦИЯ f(,a) ВОЗВРАТ 1; КОНЕЦФУНКЦИИ;
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace: line: 1 pos: 10 func: textExec file: localProgram.cpp
// trace: char: 44 func: textExec file: localProgram.cpp
// expect status: 16
