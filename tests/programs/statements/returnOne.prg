? "a";                  // expect: a
RETURN 1;
? "b";
