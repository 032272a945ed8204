#include "localToolkit/localToolkitApplication.h"

#include <QGuiApplication>

#include <clocale>

namespace {

QtMessageHandler usualHandler = nullptr;

// What the toolkit remarks on the desktop it finds: there is none, and nobody wants to know. What
// keeps it from starting is no remark.
void withoutRemarks(QtMsgType type, const QMessageLogContext& place, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        usualHandler(type, place, text);
    }
}

}  // namespace

// The toolkit knows the application of the process, so it does not matter that each module has this
// code, and these words, for itself.
QGuiApplication& localToolkitApplication() {
    if (qGuiApp == nullptr) {
        static char program[] = "korvo-run";
        static char option[] = "-platform";
        static char platform[] = "offscreen";
        static char* words[] = {program, option, platform, nullptr};
        static int count = 3;
        usualHandler = qInstallMessageHandler(withoutRemarks);
        static_cast<void>(new QGuiApplication(count, words));
        qInstallMessageHandler(usualHandler);
        // The application takes the user's locale for everything; numbers of the language do not.
        std::setlocale(LC_NUMERIC, "C");
    }
    return *qGuiApp;
}
