FUNCTION f() RETURN contextget(); ENDFUNCTION;
gone = f();
