name = "two";
RUN "one "+name;                // expect: host: startProgram one two
RUN notepad;                    // expect: host: startProgram notepad
