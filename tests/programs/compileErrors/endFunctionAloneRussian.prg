КОНЕЦФУНКЦИИ;           // expect status: 3
