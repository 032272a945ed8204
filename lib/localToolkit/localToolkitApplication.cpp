#include "localToolkit/localToolkitApplication.h"

#include <QGuiApplication>

#include <clocale>

// The toolkit knows the application of the process, so it does not matter that each module has this
// code, and these words, for itself.
QGuiApplication& localToolkitApplication() {
    if (qGuiApp == nullptr) {
        static char program[] = "korvo-run";
        static char option[] = "-platform";
        static char platform[] = "offscreen";
        static char* words[] = {program, option, platform, nullptr};
        static int count = 3;
        static_cast<void>(new QGuiApplication(count, words));
        // The application takes the user's locale for everything; numbers of the language do not.
        std::setlocale(LC_NUMERIC, "C");
    }
    return *qGuiApp;
}
