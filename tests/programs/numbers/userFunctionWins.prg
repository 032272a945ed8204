// A function of the program comes before the built-in one of that name.
FUNCTION ABS(x)
    RETURN "mine";
ENDFUNCTION;
? ABS(-5);       // expect: mine
