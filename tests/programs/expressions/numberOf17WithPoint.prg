// The point counts as a character.
? 123456789012345.6;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: ? 123456789012345.6;
// expect: Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов
// trace: line: 2 pos: 19 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 36
