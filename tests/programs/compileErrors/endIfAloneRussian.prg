КОНЕЦЕСЛИ;              // expect status: 4
