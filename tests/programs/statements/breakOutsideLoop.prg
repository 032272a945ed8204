// A BREAK in the main program ends it without a value and without a word.
? 1;                    // expect: 1
BREAK;                  // expect status: 55
? 2;
