// Scopes follow the calls and not the text: a function sees and changes the variables of its caller.
FUNCTION reader() RETURN x; ENDFUNCTION;
FUNCTION writer() x = "written"; RETURN 1; ENDFUNCTION;
FUNCTION between(x)
    ? reader();
    y = writer();
    ? x;
    RETURN 1;
ENDFUNCTION;
x = "global";
y = between("local");
// expect: local
// expect: written
? x;                    // expect: global
? reader();             // expect: global
