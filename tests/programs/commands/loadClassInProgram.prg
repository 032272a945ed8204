// The first line is written when the program is compiled as well.
LOAD CLASS TEST ;
// expect: Пытаемся загрузить класс
// expect: Пытаемся загрузить класс
// expect: Пытаемся загрузить класс [TEST]
// expect: Класс [TEST] загружен!
// expect: СПИСОК КЛАССОВ
// expect: СПИСОКЗНАЧЕНИЙ (VALUELIST)  - класс СписокЗначений
// expect: ТАБЛИЦАЗНАЧЕНИЙ (VALUETABLE)  - класс ТаблицаЗначений
// expect match: ТЕСТ (TEST)  - *
