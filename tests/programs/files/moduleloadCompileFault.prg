// A fault of the module is written out; the caller goes on.
? MODULELOAD("data/modules/compileFault.txt");
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? (1;
// expect: Синтаксическая ошибка. Ожидается ")"
// trace: line: 2 pos: 4 func: textLoad file: localProgram.cpp
// trace: char: 59 func: textLoad file: localProgram.cpp
// expect: ЛОЖЬ
? "goes on";        // expect: goes on
