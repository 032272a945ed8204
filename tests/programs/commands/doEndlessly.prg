// A program that runs itself ends at the guard of the stack, and each of its runs tells so.
DO "data/runsItself.prg";       // expect status: 16
// trace match: Слишком глубокая вложенность или рекурсия! func: * file: *.cpp
// expect many: DO "data/runsItself.prg";
// expect many: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace many: line: 1 pos: 0 func: textExec file: localProgram.cpp
// trace many: char: 68 func: textExec file: localProgram.cpp
// trace many: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace many: =DO "data/runsItself.prg";  func: execute file: localExecution.cpp
// trace many: ERROR!!! func: execute file: localExecution.cpp
// trace many: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace: =DO "data/runsItself.prg";  func: execute file: localExecution.cpp
// expect: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику.
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
