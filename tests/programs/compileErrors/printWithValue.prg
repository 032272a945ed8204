PRINT x;                // expect status: 42
