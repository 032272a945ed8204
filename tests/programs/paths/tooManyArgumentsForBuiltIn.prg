? abs(1, 2);            // expect status: 31
