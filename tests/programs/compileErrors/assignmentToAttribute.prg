// A comparison whose right side is missing.
// trace: ; func: textCompile file: localCompiler.cpp
// trace: Синтаксическая ошибка. func: textCompile file: localCompiler.cpp
// expect: a.b = ;
// expect: Синтаксическая ошибка.
// trace: line: 9 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
a.b = ;
