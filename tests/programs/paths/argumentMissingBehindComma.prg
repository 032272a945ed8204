// The status stays as it was.
? abs(1,);
// expect: Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 39
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect status: 54
