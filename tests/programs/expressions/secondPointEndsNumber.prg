? 1.2.3;                // expect status: 42
