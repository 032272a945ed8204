// f (x) reads the variable and stops at the parenthesis.
FUNCTION f(x) RETURN x; ENDFUNCTION;
f = 5;
? f (1);                // expect status: 42
