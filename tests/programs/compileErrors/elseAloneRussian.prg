// expect: ИНАЧЕ
// expect: Неизвестный статус возврата ном: 0
// trace: line: 6 pos: 5 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 0
ИНАЧЕ
