КОНЕЦПРОЦЕДУРЫ;         // expect status: 3
