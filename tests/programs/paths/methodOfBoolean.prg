? ИСТИНА.y();           // expect status: 51
