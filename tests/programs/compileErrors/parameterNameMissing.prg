FUNCTION f(a,) RETURN 1; ENDFUNCTION;   // expect status: 16
// expect:  Ошибка считывания аргумента !!!
// expect: FUNCTION f(a,) RETURN 1; ENDFUNCTION;   // expect status: 16
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
