? "early";
RETURN 2;
? "never";
