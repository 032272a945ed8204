// A program that runs itself ends at the guard of the stack.
DO "data/runsItself.prg";       // expect status: 16
