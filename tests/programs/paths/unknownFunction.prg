? nobody();             // expect status: 27
