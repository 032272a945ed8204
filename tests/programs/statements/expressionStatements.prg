// A statement that begins with a name and a point or parenthesis runs for its effect.
FUNCTION told(x) ? x; RETURN x; ENDFUNCTION;
told(1);                // expect: 1
told(2)+told(3);        // expect: 2
// expect: 3
(told(4));              // expect: 4
("dropped");
message("out");         // expect: out
