// Compiled as an assignment, yet the word has asked for the end by then.
// expect: ? exit;
// expect: Неизвестный статус возврата ном: 5
// trace: line: 8 pos: 7 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 5
exit=3;
? exit;
