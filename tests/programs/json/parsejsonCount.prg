l = PARSEJSON("[]", 1);           // expect status: 31
