ФУНКЦИЯ f RETURN 1; КОНЕЦФУНКЦИИ;       // expect status: 40
