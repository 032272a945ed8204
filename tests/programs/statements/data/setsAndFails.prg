x = 10;
y = "kept";
? "begun";
z = 1/0;
? "never";
