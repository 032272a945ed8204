a = 1;
? a . b;                // expect status: 42
