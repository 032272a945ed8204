x = "text";
? x.LENGTH;             // expect status: 51
