x = 1;
DISP MEMO X;
// expect:
// expect match: СПИСОК ПЕРЕМЕННЫХ*
// expect match: в том числе*
// expect match: 0 [0x*] var [X] : *
// trace match: Accessible RAM: * func: dispMemo file: localContextListings.cpp
DISP CLASS;
// expect: СПИСОК КЛАССОВ
// expect: СПИСОКЗНАЧЕНИЙ (VALUELIST)  - класс СписокЗначений
// expect: ТАБЛИЦАЗНАЧЕНИЙ (VALUETABLE)  - класс ТаблицаЗначений
