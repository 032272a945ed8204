? --2;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? --2;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 3 func: textExec file: localProgram.cpp
// trace: char: 45 func: textExec file: localProgram.cpp
// expect status: 37
