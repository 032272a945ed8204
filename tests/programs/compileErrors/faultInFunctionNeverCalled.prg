FUNCTION f() x = ; ENDFUNCTION;         // expect status: 37
? "never";
