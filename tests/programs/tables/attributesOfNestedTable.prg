inner = CREATEOBJECT("VALUETABLE");
inner.COLUMNADD("x");
inner.ROWADD();
inner.VALUESET(1,1,"deep");
inner.ROWACTUALSET(1);
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("inner");
table.ROWADD();
table.VALUESET(1,1,inner);
table.ROWACTUALSET(1);
? table.inner.x;                            // expect: deep
? table.inner.ROWSCOUNT();                  // expect: 1
