ЕСЛИ 1 x=2; КОНЕЦЕСЛИ;          // expect status: 47
