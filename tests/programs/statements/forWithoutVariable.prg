FOR =1 TO 2 DO ? 1; ENDDO;              // expect status: 37
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Синтаксическая ошибка. func: textExec file: localProgram.cpp
