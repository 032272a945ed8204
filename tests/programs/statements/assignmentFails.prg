a = 1;
a = a+"b";              // expect status: 50
// expect:
// expect: >> A=a+"b";
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect: Неверный тип операнда (-ов)!
