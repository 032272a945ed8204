// A number with a point begins an expression too, whose outcome is dropped.
1.5 = 2;
? 1;                    // expect: 1
