FOR i=1 TO 3 DO ENDDO;  // expect status: 54
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
