// Without a blank behind it the word reads as a name.
HELP;                           // expect status: 37
