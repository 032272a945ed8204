// Three letters are a name.
ПЕР x = 1;              // expect status: 37
