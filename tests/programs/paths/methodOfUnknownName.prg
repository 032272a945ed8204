? nobody.y();           // expect status: 10
