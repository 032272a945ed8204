l = PARSEJSON(5);                 // expect status: 33
