// An item that cannot be restored fails the list.
r = VALUEFROMJSON('[{"p": "a", "v": {"t": "QQQ"}}]');       // expect: typeMnemo=QQQ
                                                            // expect status: 35
