ВОЗВРАТ ;
// trace: Внимание!!! Команда RETURN (ВОЗВРАТ) должна ВСЕГДА иметь возвращаемое значение! func: textCompile file: localCompiler.cpp
// expect: ВОЗВРАТ ;
// expect: Встретился оператор ВОЗВРАТ (return) без возвращаемого значения.
// trace: line: 1 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 15
