// The statement is taken for a call, but the expression ends behind the name.
abs (1);                        // expect status: 42
