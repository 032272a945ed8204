// The point counts as a character.
? 123456789012345.6;    // expect status: 36
