x = classload("TEST");
a = createobject("TEST");
? a=a;                          // expect status: 16
// expect: Не могу выполниить операцию номер [8]
