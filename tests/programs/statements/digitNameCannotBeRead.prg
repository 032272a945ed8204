// A name may begin with a digit, but no expression reads it.
1a = 2;
? 1;                    // expect: 1
