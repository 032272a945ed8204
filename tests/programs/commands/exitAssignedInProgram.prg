// Compiled as an assignment, yet the word has asked for the end by then.
exit=3;
? exit;                         // expect status: 5
