// expect status: 37
x
