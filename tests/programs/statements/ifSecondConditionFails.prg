IF 1=2 THEN ? 1; ELSEIF 1/0 THEN ? 2; ENDIF;        // expect status: 21
// expect:
// trace: >> = 1/0;  func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
