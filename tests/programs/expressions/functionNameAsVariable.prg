// In other letters the name reaches the variables.
abs = 5;
? abs;                  // expect: 5
? Abs;                  // expect: 5
