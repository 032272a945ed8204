a = (1=1);
? a AND !a;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? a AND !a;
// expect: Синтаксическая ошибка.
// trace: line: 2 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 33 func: textExec file: localProgram.cpp
// expect status: 37
