// A branch without statements fails when it is chosen, and leaves no status.
? "before";             // expect: before
IF 1=1 THEN ELSE ? 1; ENDIF;            // expect status: 54
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
