// A program may not end inside a block: the block's own word is asked for.
WHILE 1 DO
? 1;
// expect status: 44
