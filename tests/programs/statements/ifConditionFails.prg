IF 1=nobody THEN ? 1; ENDIF;            // expect status: 10
// expect:
// expect: >> = 1=nobody;
// expect: ERROR!!! Неверный атрибут.
// expect: Неверный атрибут.
