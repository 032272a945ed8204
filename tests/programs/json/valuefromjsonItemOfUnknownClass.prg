// Whatever is wrong inside, the list cannot be restored.
v = VALUEFROMJSON('{"t": "OBJ", "tN": "VALUELIST", "v": [{"p": "x", "v": {"t": "OBJ", "tN": "NO", "v": []}}]}');
// expect status: 35
