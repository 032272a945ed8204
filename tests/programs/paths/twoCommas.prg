? max(1,,2);
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? max(1,,2);
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 44 func: textExec file: localProgram.cpp
// expect status: 37
