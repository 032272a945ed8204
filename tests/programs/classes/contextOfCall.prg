// The context of a call sees its variables while the call lasts.
FUNCTION f(inner)
    c = contextget();
    RETURN c.inner+c.outer;
ENDFUNCTION;
outer = 10;
? f(5);                         // expect: 15
