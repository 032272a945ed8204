// expect: Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 244
// trace: ); func: textCompile file: localCompiler.cpp
// trace: Ок. Ошибки отсутствуют func: textCompile file: localCompiler.cpp
// expect status: 54
abs(1,);
