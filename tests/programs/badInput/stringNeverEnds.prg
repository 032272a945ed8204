// expect: ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '"'
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 'and on';
// expect: Синтаксическая ошибка.
// trace: line: 10 pos: 11 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 37
? "this goes on
? 1;
? 'and on';
