FUNCTION later(x) RETURN string(x)+" again"; ENDFUNCTION;
? later(2);
