// Definitions are no statements: a branch that holds nothing else is empty and fails.
IF 1=1 THEN
    FUNCTION f() RETURN 1; ENDFUNCTION;
ENDIF;                  // expect status: 54
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
