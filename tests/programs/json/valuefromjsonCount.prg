v = VALUEFROMJSON();              // expect status: 31
