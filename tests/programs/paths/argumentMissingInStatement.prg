abs(1,);
// expect: Error scanStringGetNameTokenAndEvaluete() ожидается  параметр в позиции 6
// expect match: );*
// expect status: 54
