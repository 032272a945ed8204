// The format "JSON" writes a text with JSON's escapes; other values are written as they are.
? FORMAT("a/b", "JSON");                                    // expect: a\/b
? ФОРМАТ('"[{]}\', "JSON");                                 // expect: \"\[\{\]\}\\
? FORMAT("a/b", "json");                                    // expect: a/b
? FORMAT(1=1, "JSON");                                      // expect: ИСТИНА
