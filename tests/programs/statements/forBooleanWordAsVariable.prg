// The word is read as itself: a boolean is not compared with a number.
FOR ИСТИНА=1 TO 2 DO ? 1; ENDDO;        // expect status: 50
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
