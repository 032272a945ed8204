? 1/(0*(-1));   // expect status: 21
