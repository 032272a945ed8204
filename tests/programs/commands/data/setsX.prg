x = 5;
? "set";
