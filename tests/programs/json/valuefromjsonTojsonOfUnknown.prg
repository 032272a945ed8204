// An item that cannot be restored fails the list.
r = VALUEFROMJSON('[{"p": "a", "v": {"t": "XXX"}}]');       // expect: typeMnemo=XXX
                                                            // expect status: 35
