FUNCTION plus(a, b) RETURN a+b; ENDFUNCTION;
? plus(plus(1, 2), plus(plus(3, 4), 5));        // expect: 15
? plus(1+1, (2)*3);     // expect: 8
? plus(-1, 1?5:6);      // expect: 4
