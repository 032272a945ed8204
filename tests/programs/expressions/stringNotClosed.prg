// expect: ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '"'
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? "abc;
// expect: Синтаксическая ошибка.
// trace: line: 8 pos: 7 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 37
? "abc;
