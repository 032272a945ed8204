// The console's own words, which come before those of the language: debugging, the manual, and a
// few that stand under marked names while the plain ones work in the language.
#include <QApplication>
#include <QRegExp>

#include <algorithm>
#include <optional>
#include <vector>

#include "console/localApplicationContext.h"
#include "localConsole/console/localConsole.h"
#include "localConsole/debug/MyThread.h"
#include "localConsole/debug/localDebugEditor.h"
#include "localConsole/debug/localProcess.h"
#include "localDbVcl/manager/localDbManager.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/text/localVclText.h"

namespace {

using namespace localInterpretatorUTF8;

// A command's words, read one after the other; the rest is text.
class Words {
public:
    explicit Words(const std::u16string& command) : command_(command) {}

    // The next word in capitals.
    std::u16string next() {
        const QString word = localVclQString(scanStringGetNameToken(command_, pos_));
        return word.toUpper().toStdU16String();
    }
    std::u16string rest() const {
        return command_.substr(std::min<std::size_t>(pos_, command_.size()));
    }
    // Whether the word read last stands alone or before an argument: behind a blank, and not as a
    // name that is assigned to.
    bool isCommand() const {
        const std::u16string_view behind =
            std::u16string_view(command_).substr(std::min<std::size_t>(pos_, command_.size()));
        return behind.empty() || (isTrimmedUnit(behind[0]) && !trimBoth(behind).starts_with(u'='));
    }
    std::u16string fileName(int& status) { return scanStringGetFileName(status, command_, pos_); }
    localPosition position() const { return pos_; }
    void goBack(localPosition position) { pos_ = position; }

private:
    const std::u16string& command_;
    localPosition pos_ = 0;
};

std::u16string behind(const std::u16string& command, std::size_t units) {
    return command.substr(std::min(units, command.size()));
}

void syntaxError(const std::u16string& word) {
    writeLine(u"команда: " + word + u" Syntax ERROR");
}

// Names that match a pattern of wildcards in any case; an empty pattern matches all.
class NamePattern {
public:
    explicit NamePattern(const std::u16string& pattern)
        : text_(localVclQString(pattern).trimmed()),
          expression_(text_, Qt::CaseInsensitive, QRegExp::Wildcard) {}

    bool matches(std::u16string_view name) const {
        return text_.isEmpty() || expression_.exactMatch(localVclQString(name));
    }
    std::u16string text() const { return text_.toStdU16String(); }

private:
    QString text_;
    QRegExp expression_;
};

void displayVariables(localContextUTF8& context, const NamePattern& pattern) {
    writeLine(u"regExprString = [" + pattern.text() + u"] ");
    std::vector<std::u16string> names;
    for (const localVariableEntry& variable : context.variables()) {
        if (pattern.matches(variable.name)) {
            names.push_back(variable.name.string());
        }
    }
    std::sort(names.begin(), names.end());
    for (std::size_t i = 0; i < names.size(); ++i) {
        writeLine(numberToString(static_cast<double>(i)) + u" " + context.varDisplay(names[i]));
    }
}

void displayClasses() {
    std::vector<std::u16string> lines;
    for (const localClassDeclaration* declaration : localContextUTF8::globalContext->classes()) {
        lines.push_back(declaration->nameEng + u" (" + declaration->nameRus + u")  - " +
                        declaration->description);
    }
    std::sort(lines.begin(), lines.end());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        writeLine(numberToString(static_cast<double>(i)) + u" " + lines[i]);
    }
}

void clearVariables(localContextUTF8& context, const NamePattern& pattern) {
    traceLine({}, "commandCleaMemo");
    for (std::size_t i = context.variables().size(); i-- > 0;) {
        if (pattern.matches(context.variables()[i].name)) {
            context.varRemove(i);
        }
    }
}

void manageFile(Words& words, const std::u16string& word) {
    int status = localErrorTypeOK;
    const std::u16string fileName = words.fileName(status);
    if (status != localErrorTypeOK) {
        syntaxError(word);
        return;
    }
    dbManage(fileName);
}

// As the EDIT of the language, but run by the console itself.
void editFile(Words& words, const std::u16string& word) {
    if (!isPrefix(words.next(), u"COMMAND")) {
        syntaxError(word);
        return;
    }
    const localPosition beforeCodePage = words.position();
    const std::u16string name = words.next();
    const bool isCodePage = name == u"UTF8" || name == u"CP1251" || name == u"CP866";
    if (!isCodePage) {
        words.goBack(beforeCodePage);
    }
    int status = localErrorTypeOK;
    const std::u16string fileName = localPlatform::normalizedPath(words.fileName(status));
    if (fileName.empty()) {
        syntaxError(word);
        return;
    }
    const auto codePage =
        isCodePage ? localString::codePageFromName(name) : localString::codePageUtf8;
    if (localPlatform::pathExists(fileName) ||
        fileWrite(FileWriteMode::truncate, codePage, u"\n", fileName)) {
        localHost::current().openEditor(fileName, codePage);
    }
}

}  // namespace

void localConsole::inlineCalculation(const QString& command) {
    removeTypedLine(command);
    traceLine(u"cmdWStr:  [" + command.toStdU16String() + u"]", "cmdExec");
    const std::u16string expression = command.mid(2).toStdU16String();
    int status = localErrorTypeOK;
    localPosition pos = 0;
    localSlot value;
    if (!scanStringGetExpressionAndEvaluete(status, expression, pos, value.asResult(),
                                            context_.get(), false)) {
        writeLine(statusMessage(status));
        return;
    }
    scanStringSkipBlanks(expression, pos);
    if (pos < expression.size()) {
        putOutputLine("Syntax ERROR: " + command);
        return;
    }
    writeLine(value->toString());
}

bool localConsole::ownCommand(const std::u16string& command) {
    Words words(command);
    const std::u16string word = words.next();
    if (isPrefix(word, u"MANUAL")) {
        commandHelpAsPrg();
    } else if (isPrefix(word, u"C1LEAR")) {
        if (isPrefix(words.next(), u"MEMORY")) {
            clearVariables(*context_, NamePattern(words.rest()));
        } else {
            syntaxError(word);
        }
    } else if (word == u"DEBUG") {
        commandDebug(behind(command, 6));
    } else if (isPrefix(word, u"D1ISPLAY")) {
        const std::u16string what = words.next();
        if (isPrefix(what, u"MEMORY")) {
            displayVariables(*context_, NamePattern(words.rest()));
        } else if (isPrefix(what, u"CLASS")) {
            displayClasses();
        } else {
            syntaxError(word);
        }
    } else if (isPrefix(word, u"E1111111111111111111111111111111111111111DIT")) {
        editFile(words, word);
    } else if (isPrefix(word, u"MANAGE") && words.isCommand()) {
        manageFile(words, word);
    } else if (word == u"STEP") {
        emit commandToThread(command);
    } else if (word == u"TRACE") {
        traceLine(u"process init [" + behind(command, 5) + u"] ", "cmdExec");
        localProcess process;
        int status = localErrorTypeOK;
        process.trace(status, behind(command, 5), context_.get());
        traced_ = process.editor();
        watched_.emplace_back(traced_);
    } else if (isPrefix(word, u"TRYING")) {
        tryExample();
    } else {
        return false;
    }
    return true;
}

void localConsole::tryExample() {
    writeLine();
    traceLine({}, "tryExample");
}

void localConsole::commandDebug(const std::u16string& text) {
    int status = localErrorTypeOK;
    std::u16string fileName;
    std::u16string program;
    if (!localDebugFileRead(status, text, fileName, program, "commandDebug")) {
        return;
    }
    // Two programs at once would share the context: the one under way ends where it stands.
    const bool endsAnother = thread_ != nullptr && thread_->isRunning();
    threadEnd();
    if (endsAnother) {
        writeLine(u"Прежняя программа под DEBUG остановлена.");
    }
    thread_ = std::make_unique<MyThread>(program, context_.get());
    connect(thread_.get(), &MyThread::toConsole, this, &localConsole::fromThread);
    connect(thread_.get(), &MyThread::toConsoleAsQString, this, &localConsole::fromThreadAsQString);
    connect(thread_.get(), &MyThread::operChanged, this, &localConsole::operChangedSlot);
    connect(this, &localConsole::commandToThread, thread_.get(), &MyThread::fromConsole);
    editor_ = localDebugEditorShow(fileName, program);
    watched_.emplace_back(editor_);
    thread_->start(QThread::InheritPriority);
    setFocus();
    activateWindow();
}

void localConsole::threadEnd() {
    if (thread_ == nullptr) {
        return;
    }
    thread_->programEnd();
    // Its last news point into the tree that goes with it.
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    const localTurn::Hold turn;
    thread_.reset();
}

void localConsole::operChangedSlot(const localOperatorCompiled* node) {
    if (editor_ != nullptr) {
        editor_->positionShow(node->pos);
    }
}

void localConsole::fromThread(std::u16string* text) {
    fromThreadAsQString(localVclQString(*text));
}

void localConsole::fromThreadAsQString(const QString& text) {
    traceLine(text.toStdU16String(), "fromThread");
    putPrompt(PromptPlace::newBlock);
}

void localConsole::commandHelpAsPrg() {
    constexpr const char16_t* manual = u"testHelpLocalInterpretatorUtf8.prg";
    const std::u16string folder = localStd::fileSearch(manual);
    if (folder.empty()) {
        localHost::current().report({.kind = localReport::Kind::warning,
                                     .title = u"Help",
                                     .text = u"Файл " + std::u16string(manual) + u" не найден!"});
        return;
    }
    // Quoted, since a folder's name may hold blanks.
    const std::u16string command = u"do \"" + localStd::pathJoin(folder, manual) + u"\"";
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    if (!scanStringGetOperatorAndExec(status, command, pos, localApplicationContext(), false)) {
        traceLine(statusMessage(status), "commandHelpAsPrg");
    }
}
