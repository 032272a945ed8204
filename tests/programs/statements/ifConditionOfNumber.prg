// Any value decides by its number: above 0 is true.
IF 5 THEN ? "5"; ELSE ? "not 5"; ENDIF;             // expect: 5
IF 0.5 THEN ? "half"; ELSE ? "not half"; ENDIF;     // expect: half
IF 0 THEN ? "0"; ELSE ? "not 0"; ENDIF;             // expect: not 0
IF 0-1 THEN ? "-1"; ELSE ? "not -1"; ENDIF;         // expect: not -1
