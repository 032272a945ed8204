? !1;           // expect status: 50
