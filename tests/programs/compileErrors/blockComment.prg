/* there are none */    // expect status: 37
