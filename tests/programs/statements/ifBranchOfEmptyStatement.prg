// PRINT alone is an empty statement and leaves the block as empty as it was.
IF 1=2 THEN PRINT; ENDIF;
? 1;                                    // expect: 1
IF 1=1 THEN PRINT; ENDIF;               // expect status: 54
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
