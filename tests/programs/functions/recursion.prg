FUNCTION factorial(n)
    IF n<2 THEN RETURN 1; ENDIF;
    RETURN n*factorial(n-1);
ENDFUNCTION;
FUNCTION fibonacci(n)
    IF n<2 THEN RETURN n; ENDIF;
    RETURN fibonacci(n-1)+fibonacci(n-2);
ENDFUNCTION;
? factorial(10);        // expect: 3628800
? fibonacci(15);        // expect: 610
