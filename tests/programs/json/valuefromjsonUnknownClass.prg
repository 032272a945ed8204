v = VALUEFROMJSON('{"t": "OBJ", "tN": "NOSUCHCLASS", "v": []}');      // expect status: 14
