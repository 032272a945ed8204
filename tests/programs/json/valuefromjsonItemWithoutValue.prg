v = VALUEFROMJSON('{"t": "OBJ", "tN": "VALUELIST", "v": [{"p": "x"}]}');      // expect status: 35
