#include "localRunnerPrograms.h"

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localRunnerPrograms {
namespace {

enum ExitCode { valueOne = 0, failed = 1, unreadable = 2, valueOther = 3 };

bool load(const std::u16string& fileName, std::u16string& text, const char* function) {
    int status = localErrorTypeOK;
    if (loadFileToText(status, fileName, text, u"Utf8")) {
        return true;
    }
    writeLine(u"Error! ");
    traceLine(localStatusWords(status), function);
    return false;
}

bool compiled(const std::u16string& text, localOperatorCompiled& root) {
    int status = localErrorTypeOK;
    return programCompile(status, text, root, "textExec");
}

}  // namespace

int run(const std::u16string& fileName) {
    localContextUTF8 context;
    std::u16string text;
    if (!load(fileName, text, "run")) {
        return unreadable;
    }
    int status = localErrorTypeOK;
    if (!textExec(status, text, &context)) {
        // A BREAK outside any loop, and a program that fails without a status, have no words.
        if (status != localErrorTypeBREAK && status != localErrorTypeOK) {
            traceLine(localStatusWords(status), "run");
        }
        return failed;
    }
    return status == localErrorTypeRESULTNOTONE ? valueOther : valueOne;
}

int runAndExport(const std::u16string& fileName) {
    localContextUTF8 context;
    int status = localErrorTypeOK;
    localSlot sheet;
    // Brings the library, whose SHOW exports.
    if (!context.createObj(status, u"TABLEDOCUMENT", sheet.asResult())) {
        traceLine(localStatusWords(status), "runAndExport");
        return unreadable;
    }
    if (!toUpper(fileName).ends_with(u".SXL")) {
        return run(fileName);
    }
    const localSlot name = localSlot::reserve();
    name->setVal(localText(fileName));
    localValueDescription* const names[] = {name.get()};
    const localArguments args = names;
    localSlot loaded;
    if (!sheet->valueMethodExec(status, &context, u"LOAD", &args, loaded.asResult()) ||
        loaded->num == 0.0) {
        return unreadable;
    }
    const localArguments none;
    localSlot shown;
    if (!sheet->valueMethodExec(status, &context, u"SHOW", &none, shown.asResult())) {
        traceLine(localStatusWords(status), "runAndExport");
        return failed;
    }
    return valueOne;
}

int check(const std::u16string& fileName) {
    std::u16string text;
    if (!load(fileName, text, "check")) {
        return unreadable;
    }
    localOperatorCompiled root;
    return compiled(text, root) ? valueOne : failed;
}

int dump(const std::u16string& fileName) {
    std::u16string text;
    if (!load(fileName, text, "dump")) {
        return unreadable;
    }
    localOperatorCompiled root;
    if (!compiled(text, root)) {
        return failed;
    }
    root.dump();
    return valueOne;
}

}  // namespace localRunnerPrograms
