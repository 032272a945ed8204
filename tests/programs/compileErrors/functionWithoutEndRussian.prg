ФУНКЦИЯ f()             // expect status: 46
