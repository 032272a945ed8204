v = ЗНАЧЕНИЕИЗJSON(1=1);          // expect status: 33
