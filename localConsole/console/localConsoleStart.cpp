#include "localConsole/console/localConsoleStart.h"

#include <iostream>

#include "localConsole/console/localConsole.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/window/localVclWindow.h"

namespace {

void greet() {
    writeLine(u"This is the high-level language Korvo interpreter.");
    writeLine(u"Интерпретатор языка Корво.");
    writeLine();
    writeLine(u" Press F1 or input HELP command for brief manual");
    writeLine(u" Press Ctrl+F1, Shift+F1, Alt+F1, or input MANUAL command for full manual");
    writeLine(u" Input QUIT command for exit.");
}

bool startedInProgramFolder() {
    constexpr std::size_t longestPath = 260;  // bytes
    const std::string current = localPlatform::fileNameToBytes(localPlatform::workingDirectory());
    return !current.empty() && current.size() <= longestPath &&
           current == localPlatform::fileNameToBytes(localStd::binaryPath());
}

void goToSamples() {
    if (!startedInProgramFolder()) {
        return;
    }
    const std::u16string samples = localStd::pathJoin(localStd::binaryPath(), u"prgTest");
    if (localPlatform::changeWorkingDirectory(samples)) {
        writeLine();
        writeLine(u"CWD is set to  " + samples);
    }
}

}  // namespace

localConsole* localConsoleStart(localCoutBuffer& buffer) {
    auto* console = new localConsole;
    QObject::connect(&buffer, &localCoutBuffer::COUT, console, &localConsole::COUT);
    std::cout.rdbuf(&buffer);
    greet();
    goToSamples();
    // Only now does a line come to the console.
    console->settingsFailureTell();
    localVclWindowShow(console, {.title = "console()",
                                 .modal = false,
                                 .iconAsBase64 = {},
                                 .place = console->windowPlace()});
    writeLine();
    return console;
}
