// The second print reads as a conditional of the first.
? 1
? 2;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 2;
// expect: Неизвестный статус возврата ном: 38
// trace: line: 3 pos: 3 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 38
