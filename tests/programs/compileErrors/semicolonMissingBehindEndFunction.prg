FUNCTION f() x=2; ENDFUNCTION   // expect status: 42
y = 1;
