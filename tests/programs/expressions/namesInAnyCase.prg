// a and A, я and Я, ё and Ё are the same name.
abc = 1;
ABC = ABC+1;
? aBc;                  // expect: 2
ёж = "колючий";
? ЁЖ;                   // expect: колючий
_x1 = 3;
? _X1;                  // expect: 3
переменнаяОдин = 4;
? ПеременнаяОдин;       // expect: 4
