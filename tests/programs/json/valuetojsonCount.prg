? VALUETOJSON();                  // expect status: 31
