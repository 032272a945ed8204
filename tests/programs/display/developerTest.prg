// The entries for developers tell that they were called.
? ___TEST();
// trace:  метод ___test() func: ___TEST file: localDeveloperFunctions.cpp
// expect: 1
? ___TEST__TEXTBROWSER(CREATEOBJECT("VALUELIST"));
// expect:  Ошибка! Пустой список значений
// expect: 1
