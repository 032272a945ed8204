FUNCTION f(a b) RETURN 1; ENDFUNCTION;  // expect status: 40
// expect: FUNCTION f(a b) RETURN 1; ENDFUNCTION;  // expect status: 40
// expect: Синтаксическая ошибка. Ожидается "("
// expect: line: 1 pos: 13
// expect: char: 98
