// Texts and objects are the only values.
t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON('{"a": "b",
  "c": 5}');
// expect: синтаксическая ошибка в строке 2 позиция 7
// expect:   "c": 5}
// expect status: 34
