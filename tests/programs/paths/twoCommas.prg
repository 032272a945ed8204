? max(1,,2);            // expect status: 37
