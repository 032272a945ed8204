// A program that ends by a BREAK has no value.
? "before";                     // expect: before
DO "data/breaks.prg";           // expect status: 55
