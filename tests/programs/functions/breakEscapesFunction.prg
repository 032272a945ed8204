FUNCTION f() BREAK; ENDFUNCTION;
? "before";             // expect: before
? f();                  // expect status: 19
// expect:
// expect: >> f() in );
// expect: ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла.
