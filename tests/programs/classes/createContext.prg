// A context is no registered class.
? createobject("CONTEXT");      // expect status: 14
