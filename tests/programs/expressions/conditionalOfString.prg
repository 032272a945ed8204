// Any value decides by its number; a fresh string's number is 0.
? "a"?1:2;              // expect: 2
? ""?1:2;               // expect: 2
