// expect: ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '"'
// trace:  Ошибка компиляции запрограммированной команды (оператора) !!!  func: textCompile file: localCompiler.cpp
// expect: RUN "one ;
// expect: Синтаксическая ошибка.
// trace: line: 8 pos: 10 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 37
RUN "one ;
