x = classload("TEST");
y = classdisplay("TEST");
// expect: ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
// expect: . члены класса ТЕСТ (TEST)  - тестовый класс для отладки объектно-ориентированного программирования
// expect: ... 0 <конструктор>
// expect: ... 1 ATTRIBINT : аттрибут  [readable]  [writeable]
// expect: ... 2 GETINT() : метод
// expect: ... 3 GETINTPLUS() : метод
// expect: ... 4 GETINTPLUSONE() : метод
// expect: ... 5 SELF : аттрибут  [readable]
// expect: ... 6 TOSTRING() : метод
// expect: ... 7 ~() : метод
