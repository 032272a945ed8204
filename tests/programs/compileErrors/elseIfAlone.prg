ELSEIF 1=1 THEN
// expect: ELSEIF 1=1 THEN
// expect: Неизвестный статус возврата ном: 1
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 1
