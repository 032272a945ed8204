// Names are not looked up while a program is checked.
IF 1=2 THEN ? nobody(1).x; x = nobody2.y.z(); ENDIF;        // expect status: 42
