table = CREATEOBJECT("VALUETABLE");
table.ROWADD();
table.ROWADD();
? table.ROWACTUALGET();                     // expect: 0
? table.ROWACTUALSET(2);                    // expect: 2
? table.ROWACTUALGET();                     // expect: 2
? table.РЯДТЕКУЩИЙУСТАНОВИТЬ(1.9);          // expect: 1
? table.РЯДТЕКУЩИЙПОЛУЧИТЬ();               // expect: 1
