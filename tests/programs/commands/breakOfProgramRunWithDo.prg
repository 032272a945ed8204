// A program that ends by a BREAK has no value.
? "before";                     // expect: before
DO "data/breaks.prg";           // expect status: 55
// trace: Неизвестный статус возврата ном: 55 func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace: =DO "data/breaks.prg";  func: execute file: localExecution.cpp
// expect: Неизвестный статус возврата ном: 55
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неизвестный статус возврата ном: 55 func: textExec file: localProgram.cpp
