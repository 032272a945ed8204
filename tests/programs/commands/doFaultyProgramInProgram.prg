? "before";
DO "data/failsLate.prg";        // expect status: 21
? "never";
// expect: before
// expect: begun
// expect: 1/0
// expect: ERROR!!! Деление на 0! in  expression.
// expect: Expression below: 1/0 in  expression
// expect: Деление на 0!
// expect: Деление на 0!
// expect: =DO "data/failsLate.prg";
// expect: Деление на 0!
// expect: ERROR!!!
// expect: Деление на 0!
