// A string with the format JSON gets the escapes of JSON; any other value and format its own text.
? FORMAT('say "hi"',"JSON");             // expect: say \"hi\"
? FORMAT("back\slash","JSON");           // expect: back\\slash
? FORMAT("two"+CHR(10)+"lines","JSON");  // expect: two\nlines
? FORMAT(CHR(9)+"[x]","JSON");           // expect: \t\[x\]
? FORMAT("plain","JSON");                // expect: plain
? FORMAT('"',"json");                    // expect: "
? FORMAT(1=1,"JSON");                    // expect: ИСТИНА
? FORMAT(1,"JSON");                      // expect: #FORMAT ERROR
