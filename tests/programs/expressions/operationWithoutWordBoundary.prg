// Behind an operand the letters of an operation need no blank after them: a Иван is a И ван.
a = 1=1;
ван = 1=2;
л = 1=2;
? a Иван;       // expect: ЛОЖЬ
? a orван;      // expect: ИСТИНА
? a ANDван;     // expect: ЛОЖЬ
? a Иливан;     // expect: ИСТИНА
? (a)и(a);      // expect: ИСТИНА
? (a)or(ван);   // expect: ИСТИНА
// Not the whole of ИЛИ: the lone И and the name Л.
? a Ил;         // expect: ЛОЖЬ
