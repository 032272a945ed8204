? ();
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? ();
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 3 func: textExec file: localProgram.cpp
// trace: char: 41 func: textExec file: localProgram.cpp
// expect status: 37
