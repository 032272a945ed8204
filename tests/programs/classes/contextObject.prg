c = contextget();
? string(c);
// expect match: объект класса [КОНТЕКСТ] по адресу [0x*]
x = 7;
? c.x;                          // expect: 7
? c.ИСТИНА;                     // expect: ИСТИНА
? c.abs(0-4);                   // expect: 4
FUNCTION f(a) RETURN a+1; ENDFUNCTION;
? c.f(1);                       // expect: 2
? c.c.c.x;                      // expect: 7
