// Its pattern is all the rest of the text, also the semicolon.
DISP FUNC ABS ;                 // expect status: 42
