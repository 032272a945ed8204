x = classload("TEST");
o = createobject("TEST");
? o.tostring();                 // expect: объект тестового класса [ТЕСТ] c числом 12121212
? o.GetInt();                   // expect: 12121212
? o.getIntPlusOne();
// trace:  метод GETINTPLUSONE() thisObj->attribInt=12121212 func: classImplementationMethodFunction file: localClassForTest.cpp
// expect: 12121213
? o.GETINTPLUS(5);
// trace:  метод GETINTPLUS() thisObj->attribInt=12121212 func: classImplementationMethodFunction file: localClassForTest.cpp
// trace:  метод GETINTPLUS() количество параметров=1 func: classImplementationMethodFunction file: localClassForTest.cpp
// expect: 12121217
