#include "localConsole/console/qMain.h"

#include <QApplication>
#include <QFont>
#include <QUtf8StringView>

#include <clocale>
#include <iostream>

#include "console/localApplicationContext.h"
#include "localConsole/console/localConsoleStart.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localDb/localDbExtension.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/window/localVclTurn.h"

namespace {

constexpr const char* functionName = "qMain";
constexpr int batchArgumentCount = 1001;

void setApplicationFont() {
    QFont font("MS Sans Serif", 10);
    font.setStyleHint(QFont::SansSerif);
    const int size = QApplication::font().pointSize();
    traceLine(localString::fromUtf8(std::to_string(size)), functionName);
    QApplication::setFont(font);
}

// The event loop is no part of the language: whoever enters it from there asks for the turn.
int eventsServe() {
    const localTurn::Pause pause;
    return QApplication::exec();
}

int runConsole(localCoutBuffer& buffer) {
    localConsoleStart(buffer);
    return eventsServe();
}

// The name comes in the code page CP1251, or as this system writes names. Russian words in the one
// are no valid text in UTF-8.
std::u16string batchFileName(const std::string& bytes) {
    return QUtf8StringView(bytes.data(), static_cast<qsizetype>(bytes.size())).isValidUtf8()
               ? localPlatform::fileNameFromBytes(bytes)
               : localString::fromBytes(bytes, localString::codePageCP1251);
}

// Runs one program without a console. No user reaches this: nobody gives a thousand words.
int runBatch(const std::string& name) {
    if (name.starts_with('>')) {
        return 0;
    }
    const std::u16string fileName = batchFileName(name);
    traceLine(fileName, functionName);
    const std::u16string command = u"do " + fileName;
    traceLine(u"command: [" + command + u"]", functionName);
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    localInterpretatorUTF8::scanStringGetOperatorAndExec(status, command, pos,
                                                         localApplicationContext(), false);
    const int result = QApplication::topLevelWidgets().isEmpty() ? 0 : eventsServe();
    if (status == localErrorTypeQUIT) {
        writeLine(u"Done!");
    }
    return result;
}

}  // namespace

int qMain(int argc, char* argv[]) {
    // argv[0] may be relative or a bare name found by the shell; the program's folder is needed
    // later.
    localStd::argv0Set(localPlatform::programPath(argv[0]));
    localStd::startDirectory();
    traceLine(localPlatform::fileNameFromBytes(argv[0]), functionName);
    // The command line has no effect, on the toolkit neither, so the application sees the path
    // alone.
    int applicationArgumentCount = 1;
    // The event loop on GLib keeps keys that an event loop without user input has set aside, until
    // some other event comes: keys pressed while a program ran would appear behind it, not be
    // dropped.
    constexpr const char* withoutGlib = "QT_NO_GLIB";
    const bool asked = qEnvironmentVariableIsSet(withoutGlib);
    qputenv(withoutGlib, "1");
    QApplication application(applicationArgumentCount, argv);
    // Programs that are started from here choose for themselves.
    if (!asked) {
        qunsetenv(withoutGlib);
    }
    // The application takes the user's locale for everything; numbers of the language do not.
    std::setlocale(LC_NUMERIC, "C");
    localVclTurnInstall();
    localDbDataFileOfEnvironment();
    setApplicationFont();
    localCoutBuffer buffer;
    std::streambuf* const before = std::cout.rdbuf();
    const int result = argc < batchArgumentCount ? runConsole(buffer) : runBatch(argv[1]);
    std::cout.rdbuf(before);
    return result;
}
