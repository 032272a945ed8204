// Global functions on files and folders.
#include <algorithm>
#include <string>

#include "library/localHandlers.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"

namespace localHandlers {
namespace {

// "*" stands for any run of units, "?" for one unit. A mismatch goes back to the last "*" only, so
// the cost is at most the product of the lengths.
bool maskMatches(std::u16string_view mask, std::u16string_view name) {
    std::size_t inMask = 0;
    std::size_t inName = 0;
    std::size_t star = std::u16string_view::npos;
    std::size_t behindStar = 0;
    while (inName < name.size()) {
        if (inMask < mask.size() && mask[inMask] == u'*') {
            star = inMask++;
            behindStar = inName;
        } else if (inMask < mask.size() && (mask[inMask] == u'?' || mask[inMask] == name[inName])) {
            ++inMask;
            ++inName;
        } else if (star != std::u16string_view::npos) {
            inMask = star + 1;
            inName = ++behindStar;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of(u'*', inMask) == std::u16string_view::npos;
}

// Whole names only, as written: any other text means UTF-8.
localString::possibleCodePage codePageByWholeName(std::u16string_view name) {
    if (name == u"CP1251") {
        return localString::codePageCP1251;
    }
    return name == u"CP866" ? localString::codePageCP866 : localString::codePageUtf8;
}

}  // namespace

bool base64AppendToFile(localCall& call) {
    return call.giveBoolean(
        fileWrite(FileWriteMode::append, localString::codePageBase64, call.text(0), call.text(1)));
}

// A file that cannot be read fails the call with the status as it was. Meant.
bool base64FromFile(localCall& call) {
    std::u16string text;
    return fileRead(call.text(0), text, localString::codePageBase64) && call.give(text);
}

bool fileDelete(localCall& call) {
    return call.giveBoolean(localPlatform::removeFile(call.text(0)));
}

bool fileExist(localCall& call) {
    return call.giveBoolean(localPlatform::fileReadable(call.text(0)));
}

bool files(localCall& call) {
    const std::u16string_view mask = call.args.empty() ? u"*" : call.text(0);
    const std::u16string_view folder = call.args.size() > 1 ? call.text(1) : u".";
    std::vector<std::u16string> names;
    for (localPlatform::DirectoryEntry& entry : localPlatform::directoryEntries(folder)) {
        if (maskMatches(mask, entry.name)) {
            names.push_back(std::move(entry.name));
        }
    }
    std::sort(names.begin(), names.end());
    auto* list = new localValueList;
    call.result.objectBind(list, localValueList::classDeclaration());
    for (const std::u16string& name : names) {
        list->valueAppend(localText(name));
    }
    return true;
}

bool moduleLoad(localCall& call) {
    constexpr const char* functionName = "MODULELOAD";
    const std::u16string_view fileName = trimBoth(call.text(0));
    if (fileName.empty()) {
        return call.fail(localErrorTypeFILENOTFOUND);
    }
    std::u16string module;
    if (!fileRead(fileName, module, localString::codePageUtf8)) {
        writeLine(u"Error! ");
        traceLine(localStatusWords(localErrorTypeFILENOTFOUND), functionName);
        return call.giveBoolean(false);
    }
    // A module may load itself.
    if (!localStackGuard::enter(call.status, functionName)) {
        return false;
    }
    // Faults have written their lines by now; for the caller a module that did not load is no
    // fault.
    int moduleStatus = localErrorTypeOK;
    return call.giveBoolean(textLoad(moduleStatus, module, call.context));
}

bool pathExist(localCall& call) {
    return call.giveBoolean(localPlatform::pathExists(call.text(0)));
}

bool stringAppendToFile(localCall& call) {
    const auto codePage =
        call.args.size() > 2 ? codePageByWholeName(call.text(2)) : localString::codePageUtf8;
    return call.giveBoolean(fileWrite(FileWriteMode::append, codePage, call.text(0), call.text(1)));
}

// A file that cannot be read fails the call with the status as it was and an empty string. Meant.
bool stringFromFile(localCall& call) {
    std::u16string text;
    if (!fileRead(call.text(0), text, localString::codePageUtf8)) {
        call.give(localText());
        return false;
    }
    return call.give(text);
}

}  // namespace localHandlers
