// i+1<n is i+(1<n): a number plus a boolean.
i = 1;
n = 3;
? (i+1)<n;      // expect: ИСТИНА
? i+1<n;        // expect status: 50
// expect: i+1<n
// expect: ERROR!!! Неверный тип операнда (-ов)! in  expression.
// expect: Expression below: i+1<n in  expression
