/* there are none */
// expect: /* there are none */
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 0 func: textExec file: localProgram.cpp
// trace: char: 47 func: textExec file: localProgram.cpp
// expect status: 37
