? "before";                     // expect: before
DO "data/setsX.prg";            // expect: set
? x;                            // expect: 5
DO data/setsX.prg ;             // expect: set
? "behind";                     // expect: behind
