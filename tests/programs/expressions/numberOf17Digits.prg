? 12345678901234567;    // expect status: 36
