// A path ends with its call.
x = classload("TEST");
? createobject("TEST").GETINT();        // expect status: 42
