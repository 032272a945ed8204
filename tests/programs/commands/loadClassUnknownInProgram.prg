? "before";
LOAD CLASS NOBODY ;             // expect status: 14
// expect: Пытаемся загрузить класс
// expect: before
// expect: Пытаемся загрузить класс
// expect: Пытаемся загрузить класс [NOBODY]
// expect: =LOAD CLASS NOBODY;
// expect: Неизвестный класс.
// expect: ERROR!!!
// expect: Неизвестный класс.
