// All arguments are computed, the condition picks one.
? IIF(1=1,"yes","no");       // expect: yes
? IIF(1=2,"yes",5);          // expect: 5
? iif(1=1,1=2,0);            // expect: ЛОЖЬ
