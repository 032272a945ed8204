// Every scope seeds the generator with the second of the clock, so two calls of one second agree.
FUNCTION f() RETURN rand(); ENDFUNCTION;
agreed = 1=2;
FOR try=1 TO 3 DO
    first = f();
    agreed = agreed OR (first=f());
ENDDO;
? agreed;               // expect: ИСТИНА
