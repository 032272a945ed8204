// A value that holds a scope tells its address.
? CONTEXTGET();    // expect match: объект класса [КОНТЕКСТ] по адресу [0x*]
