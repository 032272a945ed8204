RETURN "1";             // expect status: 58
