// Nothing at all behind the word is a missing operand.
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: RETURN
// expect: Синтаксическая ошибка.
// trace: line: 8 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 37
RETURN
