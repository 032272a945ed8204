a
=
1
+
2
;
?
a
; // expect: 3
