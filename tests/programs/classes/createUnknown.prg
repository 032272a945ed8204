? createobject("NOBODY");       // expect status: 14
