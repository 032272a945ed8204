t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON(' [1]');
// expect: ошибка в строке 1 позиция 1
// expect:  [1]
// expect status: 34
