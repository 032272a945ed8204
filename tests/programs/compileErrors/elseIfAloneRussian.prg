ИНАЧЕЕСЛИ 1=1 ТОГДА
// expect: ИНАЧЕЕСЛИ 1=1 ТОГДА
// expect: Неизвестный статус возврата ном: 1
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 1
