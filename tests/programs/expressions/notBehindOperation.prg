// Behind an operation NOT is a name like any other.
a = (1=1);
? a AND NOT a;  // expect status: 42
