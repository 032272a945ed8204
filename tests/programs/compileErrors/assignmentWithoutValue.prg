// trace: ; func: textCompile file: localCompiler.cpp
// trace: Синтаксическая ошибка. func: textCompile file: localCompiler.cpp
// expect: x = ;
// expect: Синтаксическая ошибка.
// trace: line: 8 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
x = ;
