// Entries of the language for the system's developers that open a window with a text: ___TEST and
// ___TEST__TEXTBROWSER.
#pragma once

// Gives the language these functions. There must be an application when they are called.
void localConsoleLibraryInstall();
