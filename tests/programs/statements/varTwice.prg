VAR x = 1;
? x;                    // expect: 1
VAR x = 2;              // expect status: 53
// trace: Переменная не может быть задекларирована повторно. func: textExec file: localProgram.cpp
