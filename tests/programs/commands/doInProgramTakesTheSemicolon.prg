// An unquoted name goes on to the next blank.
// expect: Error!
// trace: Файл не найден. func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace:  Ошибка компиляции запрограммированной команды (оператора) !!!  func: textCompile file: localCompiler.cpp
// expect: DO data/setsX.prg;
// expect: Файл не найден.
// trace: line: 10 pos: 18 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 23
DO data/setsX.prg;
