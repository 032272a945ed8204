FUNCTION f ;            // expect status: 40
// expect: FUNCTION f ;            // expect status: 40
// expect: Синтаксическая ошибка. Ожидается "("
// expect: line: 1 pos: 10
// expect: char: 32
