// A function may hand its own context out; it is no more when the call has ended.
FUNCTION f(inner) RETURN contextget(); ENDFUNCTION;
c = f(5);
? c.inner;                      // expect status: 18
