x = 1;
ПЕРЕМЕННАЯ x = 2;       // expect status: 53
// trace: Переменная не может быть задекларирована повторно. func: textExec file: localProgram.cpp
