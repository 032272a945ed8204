? nobody;               // expect status: 10
// expect: nobody
// expect: ERROR!!! Неверный атрибут. in  expression.
// expect: Expression below: nobody in  expression
// expect: Неверный атрибут.
