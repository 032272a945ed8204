ВОЗВРАТ ;               // expect status: 15
