// A fault of the module is written out; the caller goes on.
? MODULELOAD("data/modules/compileFault.txt");
// expect: ERROR!!!
// expect: ? (1;
// expect: Синтаксическая ошибка. Ожидается ")"
// expect: line: 2 pos: 4
// expect: char: 59
// expect: ЛОЖЬ
? "goes on";        // expect: goes on
