// A body without statements fails like any empty block.
WHILE 1 DO ENDDO;       // expect status: 54
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
