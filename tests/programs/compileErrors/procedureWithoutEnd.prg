PROCEDURE f() ? 1;      // expect status: 46
