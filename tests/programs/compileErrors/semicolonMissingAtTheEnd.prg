// expect status: 42
x = 1
