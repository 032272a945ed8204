1/0;                    // expect status: 37
