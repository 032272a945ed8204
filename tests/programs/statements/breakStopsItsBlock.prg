WHILE 1 DO
    ? "before";
    BREAK;
    ? "behind";
ENDDO;
// expect: before
? "end";                // expect: end
