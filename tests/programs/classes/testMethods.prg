x = classload("TEST");
o = createobject("TEST");
? o.tostring();                 // expect: объект тестового класса [ТЕСТ] c числом 12121212
? o.GetInt();                   // expect: 12121212
? o.getIntPlusOne();
// expect:  метод GETINTPLUSONE() thisObj->attribInt=12121212
// expect: 12121213
? o.GETINTPLUS(5);
// expect:  метод GETINTPLUS() thisObj->attribInt=12121212
// expect:  метод GETINTPLUS() количество параметров=1
// expect: 12121217
