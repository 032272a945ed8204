// The summaries of the classes, all or by a pattern of their names.
CLASSLOAD("TEST");
? CLASSESDISPLAY("TE*");
// expect: СПИСОК КЛАССОВ с шаблоном имени [TE*]
// expect: ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
// expect: 1
КЛАССЫПОКАЗАТЬ("ТЕС?");
// expect: СПИСОК КЛАССОВ с шаблоном имени [ТЕС?]
// expect: ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
CLASSESDISPLAY("NOSUCH*");
// expect: СПИСОК КЛАССОВ с шаблоном имени [NOSUCH*]
CLASSESDISPLAY();
// expect: СПИСОК КЛАССОВ
// expect: СПИСОКЗНАЧЕНИЙ (VALUELIST)  - класс СписокЗначений
// expect match: ТАБЛИЦАЗНАЧЕНИЙ (VALUETABLE)  - *
// expect: ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
