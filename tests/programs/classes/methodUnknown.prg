x = classload("TEST");
o = createobject("TEST");
? o.nobody();                   // expect status: 27
// expect:
// expect: >> nobody() in );
// expect: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC.
