WHILE ;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: WHILE ;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
