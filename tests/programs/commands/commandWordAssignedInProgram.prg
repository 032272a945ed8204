// A command that takes nothing ends behind the blank, and "=" is no semicolon.
help = 3;                       // expect status: 42
