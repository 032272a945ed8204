// No context is there when a program is compiled.
CLEAR MEMORY ;                  // expect status: 18
