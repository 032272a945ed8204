// Group marks that make the number longer than its field are refused.
? FORMAT(1234567,"Ч7.0.,");   // expect: #FORMAT ERROR
? FORMAT(1234567,"Ч8.0.,");   // expect: #FORMAT ERROR
? FORMAT(1234567,"Ч9.0.,");   // expect: 1,234,567
