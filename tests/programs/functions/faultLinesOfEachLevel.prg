FUNCTION inner(x) y = x-"a"; RETURN y; ENDFUNCTION;
FUNCTION outer(x) y = inner(x); RETURN y; ENDFUNCTION;
z = outer(1);           // expect status: 50
// expect:
// expect: >> Y=x-"a";
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect:
// expect: >> inner() in );
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect:
// expect: >> Y=inner(x);
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect:
// expect: >> outer() in );
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect:
// expect: >> Z=outer(1);
// expect: ERROR!!! Неверный тип операнда (-ов)!
// expect: Неверный тип операнда (-ов)!
