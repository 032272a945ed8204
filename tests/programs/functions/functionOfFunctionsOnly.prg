// Its end gives a body its one statement, so this one is not empty.
FUNCTION outer()
    FUNCTION inner() RETURN 2; ENDFUNCTION;
ENDFUNCTION;
? outer();              // expect: 1
