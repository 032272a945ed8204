// Items with keys are no items of a list: this is a typed form without type and content.
? VALUEFROMJSON('{"x": {"p": "a","v": {"t": "NUM","v": "1"}}}'); // expect: 0
