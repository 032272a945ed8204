? 1?2:*3;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 1?2:*3;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 42 func: textExec file: localProgram.cpp
// expect status: 37
