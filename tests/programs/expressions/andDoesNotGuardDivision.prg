? (1=2) AND ((1/0)=1);      // expect status: 21
