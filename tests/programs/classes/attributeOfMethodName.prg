x = classload("TEST");
o = createobject("TEST");
? o.GETINT;                     // expect status: 8
// expect: o.GETINT
// expect: ERROR!!! Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция GET. in  expression.
