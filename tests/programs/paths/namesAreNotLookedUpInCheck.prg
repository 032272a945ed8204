IF 1=2 THEN ? nobody(1); x = nobody2.y.z(3); nobody3(); ENDIF;
? 1;                    // expect: 1
