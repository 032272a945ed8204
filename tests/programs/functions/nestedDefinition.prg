// A function inside a function is known in there and nowhere else.
FUNCTION outer(x)
    FUNCTION inner(y) RETURN x+y; ENDFUNCTION;
    RETURN inner(10);
ENDFUNCTION;
? outer(1);             // expect: 11
? outer(2);             // expect: 12
? inner(1);             // expect status: 27
