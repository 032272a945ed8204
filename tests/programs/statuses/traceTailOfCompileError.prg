? ;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? ;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
