// The window program from its first line to its last.
#pragma once

// Makes the application, shows the console and runs the event loop, whose result is the exit code.
// What stands on the command line is ignored. Sets localStd::argv0, so it can be called once in a
// process.
//
// With 1001 words or more on the command line there is no console: the program named by the second
// word is run and the result is 0, or that of the event loop when the program has left a window
// open.
int qMain(int argc, char* argv[]);
