#include "localInterpretatorUTF8/program/localCommand.h"

#include <algorithm>
#include <memory>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localStackGuard.h"
#include "program/localManualBrief.h"

namespace localInterpretatorUTF8 {
namespace {

constexpr const char* functionName = "scanStringGetOperatorAndExec";

class Command {
public:
    Command(int& status, const std::u16string& text, localPosition& pos, localContextUTF8* context,
            bool onlyCheck)
        : status_(status), text_(text), pos_(pos), context_(context), onlyCheck_(onlyCheck) {}

    bool run() {
        const localPosition start = pos_;
        scanStringSkipBlanks(text_, pos_);
        const localPosition behindBlanks = pos_;
        if (!onlyCheck_ && unit() == u'?') {
            return print();
        }
        const std::u16string_view token = scanStringGetNameToken(text_, pos_);
        scanStringSkipBlanks(text_, pos_);
        if (token.empty()) {
            return true;
        }
        if (!onlyCheck_ && unit() == u'=') {
            return assignment(token);
        }
        const localUpperName word(token);
        bool done = false;
        if (command(word, done)) {
            return done;
        }
        if (onlyCheck_) {
            pos_ = start;
            return true;
        }
        pos_ = behindBlanks;
        localSlot value;
        return scanStringGetExpressionAndEvaluete(status_, text_, pos_, value.asResult(), context_,
                                                  false);
    }

private:
    bool fail(int code) {
        status_ = code;
        return false;
    }

    char16_t unit() const { return pos_ < text_.size() ? text_[pos_] : u'\0'; }

    std::unique_ptr<localUpperName> nextWord() {
        return std::make_unique<localUpperName>(scanStringGetNameToken(text_, pos_));
    }

    bool print() {
        ++pos_;
        localSlot value;
        if (!scanStringGetExpressionAndEvaluete(status_, text_, pos_, value.asResult(), context_,
                                                false)) {
            traceLine({u"ERROR!!! ", localStatusWords(status_)}, functionName);
            return false;
        }
        writeLine(value->toString());
        return true;
    }

    bool assignment(std::u16string_view name) {
        if (context_->varFind(name) == nullptr) {
            context_->varDeclare(name);
        }
        ++pos_;
        localSlot value;
        if (!scanStringGetExpressionAndEvaluete(status_, text_, pos_, value.asResult(), context_,
                                                false)) {
            // The word lineNumber stands for a number that no line has.
            traceLine(u"Syntax ERROR in line lineNumber!!!", functionName);
            return fail(localErrorTypeSYNTAX);
        }
        // The expression may have removed the variable or declared others, so it is looked up
        // again.
        localVariableEntry* variable = context_->varFind(name);
        if (variable == nullptr) {
            variable = &context_->varDeclare(name);
        }
        variable->value->assign(*value);
        return true;
    }

    // False when the word is no command; otherwise `done` is the command's outcome.
    bool command(std::u16string_view word, bool& done) {
        if (word == u"DO") {
            done = doFile();
        } else if (isPrefix(word, u"HELP")) {
            done = help();
        } else if (isPrefix(word, u"CLEAR")) {
            done = clear();
        } else if (word == u"DIR" || isPrefix(word, u"DIRECTORY")) {
            done = directory();
        } else if (isPrefix(word, u"DISPLAY")) {
            done = display();
        } else if (isPrefix(word, u"MODIFY")) {
            done = edit(Editor::outside);
        } else if (isPrefix(word, u"EDIT")) {
            done = edit(Editor::own);
        } else if (isPrefix(word, u"LOAD")) {
            done = load();
        } else if (isPrefix(word, u"QUIT") || isPrefix(word, u"EXIT")) {
            status_ = localErrorTypeQUIT;
            done = true;
        } else if (word == u"RUN") {
            done = runProgram();
        } else {
            return false;
        }
        return true;
    }

    bool doFile() {
        const std::u16string fileName = scanStringGetFileName(status_, text_, pos_);
        if (fileName.empty()) {
            return fail(localErrorTypeSYNTAX);
        }
        std::u16string program;
        if (!loadFileToText(status_, fileName, program, u"Utf8")) {
            writeLine(u"Error! ");
            traceLine(localStatusWords(status_), functionName);
            return false;
        }
        if (onlyCheck_) {
            return true;
        }
        int programStatus = localErrorTypeOK;
        if (!localStackGuard::enter(programStatus, functionName) ||
            !textExec(programStatus, program, context_)) {
            traceLine(localStatusWords(programStatus), functionName);
            // A QUIT in a program's text spoils its compile under the status that would close the
            // console; for who runs the program it is a fault like another.
            return fail(programStatus == localErrorTypeQUIT ? localErrorTypeSYNTAX : programStatus);
        }
        return true;  // any value of the program counts as success here
    }

    bool help() {
        if (!onlyCheck_) {
            writeLine(localManualBrief);
        }
        return true;
    }

    bool clear() {
        if (!isPrefix(*nextWord(), u"MEMORY")) {
            return fail(localErrorTypeSYNTAX);
        }
        if (context_ == nullptr) {
            return fail(localErrorTypeNOCONTEXT);
        }
        pattern();  // read and not heeded: all variables go. Meant.
        context_->varRemoveAll();
        return true;
    }

    bool directory() {
        if (!onlyCheck_) {
            localHost::current().showDirectory();
        }
        return true;
    }

    bool display() {
        const auto what = nextWord();
        if (isPrefix(*what, u"FUNCTION")) {
            // All the rest of the text is the pattern, so inside a program it takes the program's
            // end too.
            const std::u16string_view rest = trimBoth(
                std::u16string_view(text_).substr(std::min<std::size_t>(pos_, text_.size())));
            pos_ = static_cast<localPosition>(text_.size());
            if (!onlyCheck_) {
                context_->dispFunc(rest);
            }
            return true;
        }
        if (isPrefix(*what, u"MEMORY")) {
            const std::u16string_view names = pattern();
            if (!onlyCheck_) {
                context_->dispMemo(names);
            }
            return true;
        }
        if (isPrefix(*what, u"CLASS")) {
            if (!onlyCheck_) {
                context_->dispClasses({});
            }
            return true;
        }
        return isPrefix(*what, u"CONTEXT") ? displayContext() : fail(localErrorTypeSYNTAX);
    }

    bool displayContext() {
        if (!onlyCheck_) {
            context_->dispFunc({});
            context_->dispMemo({});
            context_->dispClasses({});
        }
        return true;
    }

    // A run of name units, "*" and "?".
    std::u16string_view pattern() {
        scanStringSkipBlanks(text_, pos_);
        const localPosition from = pos_;
        while (pos_ < text_.size() && (isNameUnit(unit()) || unit() == u'*' || unit() == u'?')) {
            ++pos_;
        }
        return std::u16string_view(text_).substr(from, pos_ - from);
    }

    enum class Editor { outside, own };

    // Acts in check mode too: a program that names a new file creates it when it is compiled.
    // Meant.
    bool edit(Editor editor) {
        if (!isPrefix(*nextWord(), u"COMMAND")) {
            return fail(localErrorTypeSYNTAX);
        }
        localString::possibleCodePage codePage = localString::codePageUtf8;
        if (editor == Editor::own) {
            codePage = codePageWord();
        }
        const std::u16string given = scanStringGetFileName(status_, text_, pos_);
        if (given.empty()) {
            return fail(localErrorTypeSYNTAX);
        }
        const std::u16string fileName = localPlatform::normalizedPath(given);
        if (!localPlatform::pathExists(fileName) &&
            !fileWrite(FileWriteMode::truncate, codePage, u"\n", fileName)) {
            return fail(localErrorTypeFILENOTFOUND);
        }
        localHost& host = localHost::current();
        const bool opened = editor == Editor::own ? host.openEditor(fileName, codePage)
                                                  : host.openOutsideEditor(fileName);
        return opened || fail(localErrorTypeGRAPHICONLY);
    }

    localString::possibleCodePage codePageWord() {
        const localPosition before = pos_;
        const auto word = nextWord();
        if (word->view() == u"UTF8") {
            return localString::codePageUtf8;
        }
        if (word->view() == u"CP1251") {
            return localString::codePageCP1251;
        }
        if (word->view() == u"CP866") {
            return localString::codePageCP866;
        }
        pos_ = before;
        return localString::codePageUtf8;
    }

    bool load() {
        const auto what = nextWord();
        if (isPrefix(*what, u"CLASS")) {
            return loadClass();
        }
        return isPrefix(*what, u"CONTEXT") ? displayContext() : fail(localErrorTypeSYNTAX);
    }

    bool loadClass() {
        const std::u16string name(pattern());
        writeLine(u"Пытаемся загрузить класс  ");
        if (onlyCheck_) {
            return true;
        }
        writeLine({u"Пытаемся загрузить класс [", name, u"] "});
        localSlot nameValue = localSlot::reserve();
        nameValue->setVal(name);
        localValueDescription* const values[] = {nameValue.get()};
        const localArguments args(values);
        void* object = context_;
        localSlot loaded;
        if (!localContextUTF8::classDeclaration()->methodExec(
                status_, context_, object, u"CLASSLOAD", &args, loaded.asResult())) {
            return false;
        }
        writeLine({u"Класс [", name, u"] загружен!"});
        context_->dispClasses({});
        return true;
    }

    bool runProgram() {
        std::u16string commandLine;
        if (unit() == u'"') {
            localSlot value;
            if (!scanStringGetExpressionAndEvaluete(status_, text_, pos_, value.asResult(),
                                                    context_, onlyCheck_)) {
                return false;
            }
            commandLine = localPlatform::normalizedPath(value->toString());
        } else {
            commandLine = scanStringGetNameToken(text_, pos_);
        }
        if (!onlyCheck_) {
            localHost::current().startProgram(commandLine);
        }
        return true;
    }

    int& status_;
    const std::u16string& text_;
    localPosition& pos_;
    localContextUTF8* context_;
    bool onlyCheck_;
};

}  // namespace

bool scanStringGetOperatorAndExec(int& status, const std::u16string& text, std::uint32_t& pos,
                                  localContextUTF8* context, bool onlyCheck) {
    if (context == nullptr && !onlyCheck) {
        exit_FAILURE(
            u"localInterpretatorUTF8::scanStringGetOperatorAndExec() context may be NULL only in "
            u"onlyCheck!");
    }
    return localGuarded(status, functionName,
                        [&] { return Command(status, text, pos, context, onlyCheck).run(); });
}

}  // namespace localInterpretatorUTF8
