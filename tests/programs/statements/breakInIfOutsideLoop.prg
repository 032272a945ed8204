IF 1=1 THEN ПРЕРВАТЬ; ENDIF;            // expect status: 55
? 2;
