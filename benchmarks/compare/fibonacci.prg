FUNCTION fib(n)
    IF (n<2) THEN RETURN n; ENDIF;
    RETURN fib(n-1)+fib(n-2);
ENDFUNCTION;
? fib(27);
