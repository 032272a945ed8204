// The toolkit's application object, for libraries that draw without a window.
#pragma once

class QGuiApplication;

// The one application object of the process. Where there is none yet, as in the terminal program,
// one is made that needs no display, and stays to the end of the process: fonts and painting on
// images work then. Numbers stay those of the language: LC_NUMERIC is "C" behind it.
//
// Any number of modules may call it. Called on the thread of the language's turn; an application is
// not to be made on several threads at once.
QGuiApplication& localToolkitApplication();
