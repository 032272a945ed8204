FUNCTION f() ? 1; ENDDO;        // expect status: 46
