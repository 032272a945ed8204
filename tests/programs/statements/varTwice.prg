VAR x = 1;
? x;                    // expect: 1
VAR x = 2;              // expect status: 53
// expect: Переменная не может быть задекларирована повторно.
