// The second pass declares again.
FOR i=1 TO 2 DO
    VAR x = i;          // expect status: 53
    ? x;                // expect: 1
ENDDO;
// trace: Переменная не может быть задекларирована повторно. func: textExec file: localProgram.cpp
