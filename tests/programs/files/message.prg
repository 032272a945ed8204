// Any value as a line of output; the result is 1.
MESSAGE("text");            // expect: text
СООБЩИТЬ("привет");         // expect: привет
MESSAGE(5);                 // expect: 5
MESSAGE(1=1);               // expect: ИСТИНА
MESSAGE("");                // expect:
? MESSAGE("x");
// expect: x
// expect: 1
