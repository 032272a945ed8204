v = VALUEFROMJSON('{"t": "UNK", "vP": "", "v": "1"}');      // expect: typeMnemo=UNK
// expect status: 35
