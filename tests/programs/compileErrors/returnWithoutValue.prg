RETURN;                 // expect status: 15
// expect: Внимание!!! Команда RETURN (ВОЗВРАТ) должна ВСЕГДА иметь возвращаемое значение!
// expect: RETURN;                 // expect status: 15
// expect: Встретился оператор ВОЗВРАТ (return) без возвращаемого значения.
// expect: line: 1 pos: 6
// expect: char: 59
