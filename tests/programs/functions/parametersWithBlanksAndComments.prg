FUNCTION f ( a // the first
    , b /* */
) RETURN a; ENDFUNCTION;
// expect:     , b /* */
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 2 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 47 func: textExec file: localProgram.cpp
// expect status: 40
