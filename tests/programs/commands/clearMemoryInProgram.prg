// No context is there when a program is compiled.
CLEAR MEMORY ;
// trace:  Ошибка компиляции запрограммированной команды (оператора) !!!  func: textCompile file: localCompiler.cpp
// expect: CLEAR MEMORY ;
// expect: Контекст не задан.
// trace: line: 2 pos: 12 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 18
