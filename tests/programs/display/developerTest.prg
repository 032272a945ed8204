// The entries for developers tell that they were called.
? ___TEST();
// expect:  метод ___test()
// expect: 1
? ___TEST__TEXTBROWSER(CREATEOBJECT("VALUELIST"));
// expect:  Ошибка! Пустой список значений
// expect: 1
