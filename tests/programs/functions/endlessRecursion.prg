// The stack is guarded: the program fails and the process goes on.
depth = 0;
FUNCTION f(x) depth = depth+1; RETURN f(x+1); ENDFUNCTION;
? f(1);                 // expect status: 16
// expect: Слишком глубокая вложенность или рекурсия!
