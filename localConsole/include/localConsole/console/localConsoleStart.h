// How the console comes to the screen.
#pragma once

class localConsole;
class localCoutBuffer;

// Makes the console, leads the standard output stream to it through the buffer, writes the
// greeting, goes to the folder of sample programs when started from the program's own folder, and
// shows the console in a window that deletes itself and the console when it is closed.
//
// The caller keeps the buffer as long as the stream uses it, and gives the stream its old buffer
// back.
localConsole* localConsoleStart(localCoutBuffer& buffer);
