// True has the number 1 and is no number.
RETURN 1=1;             // expect status: 58
