? "never";
? ;                     // expect status: 37
// expect: ERROR!!!
// expect: ? ;                     // expect status: 37
