? createobject("TEST"); // expect status: 14
// expect:
// expect: >> createobject() in );
// expect: ERROR!!! Неизвестный класс.
