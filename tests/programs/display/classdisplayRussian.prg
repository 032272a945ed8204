// Both names of the class lead to it.
CLASSLOAD("ТЕСТ");
КЛАССПОКАЗАТЬ("Тест");
// expect: ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
// expect: . члены класса ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
// expect match: ... 0 *
// expect match: ... 1 *
// expect match: ... 2 *
// expect match: ... 3 *
// expect match: ... 4 *
// expect match: ... 5 *
// expect match: ... 6 *
// expect match: ... 7 *
