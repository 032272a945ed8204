// expect: ; ENDFUNCTION;
// trace: ? "never"; func: textCompile file: localCompiler.cpp
// trace: Синтаксическая ошибка. func: textCompile file: localCompiler.cpp
// expect: FUNCTION f() x = ; ENDFUNCTION;
// expect: Синтаксическая ошибка.
// trace: line: 9 pos: 17 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
FUNCTION f() x = ; ENDFUNCTION;
? "never";
