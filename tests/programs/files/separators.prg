// Both separators lead into folders.
? STRINGFROMFILE("data/one.txt");   // expect: 1
? STRINGFROMFILE("data\one.txt");   // expect: 1
