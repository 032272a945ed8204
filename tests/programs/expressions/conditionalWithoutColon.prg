? 1?2;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 1?2;
// expect: Неизвестный статус возврата ном: 38
// trace: line: 1 pos: 5 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 38
