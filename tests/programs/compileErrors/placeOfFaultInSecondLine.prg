? 1;
  ? (2;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect:   ? (2;
// expect: Синтаксическая ошибка. Ожидается ")"
// trace: line: 2 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 41
