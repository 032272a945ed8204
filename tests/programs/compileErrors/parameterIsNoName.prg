FUNCTION f("a") RETURN 1; ENDFUNCTION;
// expect:  Ошибка считывания аргумента !!!
// expect: FUNCTION f("a") RETURN 1; ENDFUNCTION;
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace: line: 1 pos: 11 func: textExec file: localProgram.cpp
// trace: char: 34 func: textExec file: localProgram.cpp
// expect status: 16
