// Without a blank behind it the word is no command.
help=3;
? help;                         // expect: 3
