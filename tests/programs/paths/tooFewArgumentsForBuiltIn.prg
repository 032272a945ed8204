? abs();                // expect status: 31
