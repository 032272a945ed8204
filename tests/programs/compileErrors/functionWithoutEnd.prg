FUNCTION f()            // expect status: 46
? 1;
// expect: // expect: char: 0
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦФУНКЦИИ" ("endfunction")
// expect: line: 6 pos: 18
// expect: char: 0
