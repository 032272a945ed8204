? createobject("");     // expect status: 14
