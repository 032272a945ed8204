l = PARSEJSON();                  // expect status: 31
