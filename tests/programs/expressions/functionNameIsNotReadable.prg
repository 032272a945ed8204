// The name of a built-in function in capitals is a member that has no value.
? ABS;                  // expect status: 8
