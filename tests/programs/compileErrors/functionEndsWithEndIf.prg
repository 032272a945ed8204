FUNCTION f() ? 1; ENDIF;        // expect status: 46
