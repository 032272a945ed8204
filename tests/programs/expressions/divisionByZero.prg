? 7/0;          // expect status: 21
// expect: 7/0
// expect: ERROR!!! Деление на 0! in  expression.
// expect: Expression below: 7/0 in  expression
// expect: Деление на 0!
