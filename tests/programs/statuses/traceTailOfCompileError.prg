? ;                             // expect status: 37
// expect match: ERROR!!! func: textCompile file: *.cpp line: *
// expect: ? ;                             // expect status: 37
// expect: Синтаксическая ошибка.
// expect match: line: 1 pos: 2 func: textExec file: *.cpp line: *
// expect match: char: 59 func: textExec file: *.cpp line: *
