FUNCTION f(a,) RETURN 1; ENDFUNCTION;
// expect:  Ошибка считывания аргумента !!!
// expect: FUNCTION f(a,) RETURN 1; ENDFUNCTION;
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace: line: 1 pos: 13 func: textExec file: localProgram.cpp
// trace: char: 41 func: textExec file: localProgram.cpp
// expect status: 16
