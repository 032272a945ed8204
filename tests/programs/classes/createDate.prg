// The class of dates is in use inside and not open to programs.
? createobject("DATE"); // expect status: 14
