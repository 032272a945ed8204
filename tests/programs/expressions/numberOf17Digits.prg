? 12345678901234567;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 12345678901234567;
// expect: Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов
// trace: line: 1 pos: 19 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 36
