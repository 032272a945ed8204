// A function that reaches its end has the value 1, also an empty one.
FUNCTION f() ? "in"; ENDFUNCTION;
FUNCTION g() ENDFUNCTION;
? f();                  // expect: in
// expect: 1
? g();                  // expect: 1
