// The file is opened when the program is compiled: nothing runs.
? "never";
DO "missing.prg";
// expect: Error!
// trace: Файл не найден. func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace:  Ошибка компиляции запрограммированной команды (оператора) !!!  func: textCompile file: localCompiler.cpp
// expect: DO "missing.prg";
// expect: Файл не найден.
// trace: line: 3 pos: 16 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 23
