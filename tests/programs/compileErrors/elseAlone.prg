// ELSE where no IF is open comes to the top as a status without words.
// expect: ELSE
// expect: Неизвестный статус возврата ном: 0
// trace: line: 7 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 0
ELSE
