// A fault of the module is written out; the caller goes on.
? MODULELOAD("data/modules/runFault.txt");
// expect: run
// expect: 1/0
// expect: ERROR!!! Деление на 0! in  expression.
// expect: Expression below: 1/0 in  expression
// expect: Деление на 0!
// expect: ЛОЖЬ
? "goes on";        // expect: goes on
