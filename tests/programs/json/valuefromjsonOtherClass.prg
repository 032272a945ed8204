v = ЗНАЧЕНИЕИЗJSON('{"t": "OBJ", "tN": "VALUETABLE", "v": []}');
// expect: Разбор jsonList для VALUETABLE не реализован!
// expect status: 35
