FUNCTION later(x) RETURN x*10; ENDFUNCTION;
? "defined";
