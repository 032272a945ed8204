// Without a mnemonic the value is a number, without content it is empty.
? VALUEFROMJSON("{}");                                      // expect: 0
? VALUEFROMJSON("[1, {}]");                                 // expect: 0
? VALUEFROMJSON('{"v": "17 штук"}');                        // expect: 17
? VALUEFROMJSON('{"t": "NUM"}');                            // expect: 0
? "[" + VALUEFROMJSON('{"t": "STR"}') + "]";                // expect: []
? VALUEFROMJSON('{"t": "STR", "v": 5}') + "!";              // expect: 5!
