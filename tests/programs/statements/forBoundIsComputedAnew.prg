// The bound is computed on each pass.
n = 2;
FOR i=1 TO n DO
    IF i=2 THEN n = 3; ENDIF;
    ? i;
ENDDO;
// expect: 1
// expect: 2
// expect: 3
FUNCTION bound() ? "bound"; RETURN 2; ENDFUNCTION;
FOR i=1 TO bound() DO ? i; ENDDO;
// expect: bound
// expect: 1
// expect: bound
// expect: 2
// expect: bound
