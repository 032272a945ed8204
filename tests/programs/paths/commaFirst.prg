? abs(,1);
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? abs(,1);
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 44 func: textExec file: localProgram.cpp
// expect status: 37
