// trace: ; ENDIF; func: textCompile file: localCompiler.cpp
// trace: Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов func: textCompile file: localCompiler.cpp
// expect: IF 1=2 THEN x = 12345678901234567; ENDIF;
// expect: Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов
// trace: line: 8 pos: 33 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 36
IF 1=2 THEN x = 12345678901234567; ENDIF;
