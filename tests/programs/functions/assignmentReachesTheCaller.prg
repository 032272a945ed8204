total = 0;
FUNCTION add(n) total = total+n; RETURN total; ENDFUNCTION;
? add(2);               // expect: 2
? add(3);               // expect: 5
? total;                // expect: 5
