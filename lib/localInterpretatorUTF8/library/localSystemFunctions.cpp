// Global functions on the process, its clock and its output.
#include <ctime>
#include <string>

#include "library/localHandlers.h"
#include "localInterpretatorUTF8/classes/localDateTime.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localHandlers {

bool binaryPath(localCall& call) {
    return call.give(localStd::binaryPath());
}

bool cwd(localCall& call) {
    if (call.args.empty()) {
        return call.give(localPlatform::workingDirectory());
    }
    return call.giveBoolean(localPlatform::changeWorkingDirectory(call.text(0)));
}

bool dateTimeSystemGetAsString(localCall& call) {
    const std::string text = localDateTime().toStringAscii();
    return call.give(std::u16string(text.begin(), text.end()));
}

bool logWriteValue(localCall& call) {
    logWrite(call.args[0]->toString());
    return call.done();
}

bool message(localCall& call) {
    writeLine(call.args[0]->toString());
    return call.done();
}

bool seconds20000101(localCall& call) {
    std::tm midnight{};
    midnight.tm_year = 100;
    midnight.tm_mday = 1;
    midnight.tm_isdst = -1;
    return call.give(std::difftime(std::time(nullptr), std::mktime(&midnight)));
}

bool secondsThisProcess(localCall& call) {
    return call.give(localPlatform::processMilliseconds() / 1000.0);
}

}  // namespace localHandlers
