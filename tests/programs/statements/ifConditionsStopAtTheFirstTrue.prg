FUNCTION asked(x) ? x; RETURN x=2; ENDFUNCTION;
IF asked(1) THEN ? "a"; ELSEIF asked(2) THEN ? "b"; ELSEIF asked(3) THEN ? "c"; ENDIF;
// expect: 1
// expect: 2
// expect: b
