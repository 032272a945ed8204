FUNCTION f() RETURN "outer"; ENDFUNCTION;
FUNCTION g()
    FUNCTION f() RETURN "inner"; ENDFUNCTION;
    RETURN f()+called();
ENDFUNCTION;
FUNCTION called() RETURN " "+f(); ENDFUNCTION;
? g();                  // expect: inner inner
? f();                  // expect: outer
