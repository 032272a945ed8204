? 1;
QUIT ;