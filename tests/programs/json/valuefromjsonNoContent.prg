v = VALUEFROMJSON('{"t": "OBJ", "tN": "VALUELIST"}');       // expect status: 35
