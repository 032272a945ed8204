// The status stays as it was.
? abs(1,);
// expect: Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 39
// expect: ERROR!!!
// expect status: 54
