WHILE ;                         // expect status: 37
// expect: ERROR!!!
