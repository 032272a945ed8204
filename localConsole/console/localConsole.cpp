#include "localConsole/console/localConsole.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>

#include <utility>

#include "console/localInputGate.h"
#include "console/localPaintRate.h"
#include "localConsole/debug/MyThread.h"
#include "localForm/run/localFormExtension.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"

namespace {

constexpr int keptBlocks = 100000;
// Laying out a block costs the square of its length, so a longer line of output is put as several;
// in each but the first the text has this property.
constexpr qsizetype longestBlock = 4000;
constexpr int continuesProperty = QTextFormat::UserProperty;

bool continuesLineAbove(const QTextBlock& block) {
    return !block.begin().atEnd() &&
           block.begin().fragment().charFormat().boolProperty(continuesProperty);
}

void insertOutput(QTextCursor& cursor, const QString& text, QTextCharFormat format) {
    qsizetype at = 0;
    while (text.size() - at > longestBlock) {
        const bool splitsPair = text[at + longestBlock].isLowSurrogate();
        const qsizetype length = splitsPair ? longestBlock - 1 : longestBlock;
        cursor.insertText(text.mid(at, length), format);
        cursor.insertBlock();
        at += length;
        format.setProperty(continuesProperty, true);
    }
    cursor.insertText(text.mid(at), format);
}

// Puts off the closing of a window while a command of the console in it runs: the program's own
// event loops would delete the console under the command's feet.
class localCloseLater : public QObject {
public:
    explicit localCloseLater(QWidget* window) : window_(window) {
        window->installEventFilter(this);
    }

    bool isAsked() const { return asked_; }
    // Called when closing is asked for.
    std::function<void()> onAsked;

    // Closes the window now if that was asked meanwhile.
    ~localCloseLater() override {
        if (asked_ && !window_.isNull()) {
            QMetaObject::invokeMethod(window_.data(), &QWidget::close, Qt::QueuedConnection);
        }
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Close) {
            return false;
        }
        asked_ = true;
        event->ignore();
        if (onAsked) {
            onAsked();
        }
        return true;
    }

private:
    QPointer<QWidget> window_;
    bool asked_ = false;
};

// Keys pressed while a command ran wait in the window system; taken while the console is still
// busy, they are dropped, and so are those for the window of a program under TRACE. Each call of
// the event loop brings them one step nearer, so one is not enough.
void takeWaitingInput(const QWidget* traced) {
    std::optional<localInputGate> gate;
    if (traced != nullptr) {
        gate.emplace(localInputGate::Fate::isDropped, traced->window());
    }
    constexpr int steps = 3;
    constexpr int longest = 100;  // milliseconds, should something else keep the event loop at work
    QElapsedTimer timer;
    timer.start();
    for (int idle = 0; idle < steps && timer.elapsed() < longest;) {
        const bool worked =
            QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
        idle = worked ? 0 : idle + 1;
    }
}

// The context of typed commands: the global one, made here, unless something else has needed that
// before.
std::unique_ptr<localContextUTF8> contextOfConsole() {
    if (localContextUTF8::globalContext != nullptr) {
        return std::make_unique<localContextUTF8>();
    }
    int status = localErrorTypeOK;
    return localContextUTF8::createGlobal(status);
}

QPalette greenOnBlack() {
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        palette.setColor(group, QPalette::Base, Qt::black);
        palette.setColor(group, QPalette::Text, Qt::green);
    }
    return palette;
}

}  // namespace

localConsole::localConsole(QWidget* parent) : localConsole(parent, localTurn::Hold()) {}

localConsole::localConsole(QWidget* parent, const localTurn::Hold&)
    : QPlainTextEdit(parent),
      context_(contextOfConsole()),
      promptNormal_("localInterpretatorUTF8> "),
      paintRate_(std::make_unique<localPaintRate>(this)) {
    promptLength_ = static_cast<int>(promptNormal_.size());
    promptWait_ = QString("Wait!!!").leftJustified(promptLength_, ' ', true);
    prompt_ = promptNormal_;
    inputFormat_.setForeground(Qt::green);
    outputFormat_.setForeground(Qt::gray);

    setMaximumBlockCount(keptBlocks);
    setUndoRedoEnabled(false);
    // Text comes by keys; a composed one would pass by the limits of the input line.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    putPrompt(PromptPlace::currentBlock);

    setPalette(greenOnBlack());
    // Where the application's font is missing, a fixed pitch replaces it here: listings stand in
    // columns.
    QFont ownFont = font();
    ownFont.setFamilies({ownFont.family(), "monospace"});
    ownFont.setStyleHint(QFont::Monospace);
    ownFont.setPointSize(12);
    setFont(ownFont);
    const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
    resize(qRound(desktop.width() / 2.0), qRound(desktop.height() * 0.75));
    keyCommandsFill();
    settingsApply();
}

localConsole::~localConsole() {
    // A program under DEBUG ends where it stands: it lives in the context. Windows that show
    // programs go, too.
    threadEnd();
    for (const QPointer<localVclWidgetEditor>& editor : watched_) {
        if (!editor.isNull()) {
            editor->window()->close();
        }
    }
    const localTurn::Hold turn;
    // Objects of the language may write when they go: this console is still whole enough to take
    // it.
    context_.reset();
}

bool localConsole::windowMayClose() {
    return localFormCloseAll();
}

void localConsole::cmdExec(const QString& command) {
    putPrompt(PromptPlace::newBlock);
    if (command.isEmpty()) {
        putOutputLine({});
        return;
    }
    if (command.size() == 1) {
        putOutputLine("Syntax ERROR: " + command);
        return;
    }
    // The work may be silent and take its time.
    paintRate_->paintNow();
    int status = localErrorTypeOK;
    underTurn([&] { status = act(command); });
    if (status == localErrorTypeQUIT) {
        writeLine(u"Good bye!");
        window()->close();
    }
    setBusy(false);
    putPrompt(PromptPlace::newBlock);
}

void localConsole::underTurn(const std::function<void()>& work) {
    localCloseLater closeLater(window());
    if (thread_ != nullptr) {
        // The command comes behind what a program under DEBUG is doing. It may do it for ever, but
        // closing the window ends it.
        closeLater.onAsked = [this] { thread_->programInterrupt(); };
        {
            const localInputGate gate(localInputGate::Fate::comesLater);
            thread_->waitForStop();
        }
        closeLater.onAsked = nullptr;
        if (closeLater.isAsked()) {
            return;
        }
        // Its lines stand before those of the command. And its news are taken while what they point
        // to is sure to be there.
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }
    {
        const localTurn::Hold turn;
        work();
    }
    if (busy_) {
        takeWaitingInput(traced_);
    }
    traced_ = nullptr;
}

int localConsole::act(const QString& command) {
    int status = localErrorTypeOK;
    localGuarded(status, "act", [&] {
        if (command.startsWith("# ")) {
            // And on with the same command, in which the language sees nothing.
            inlineCalculation(command);
        }
        const std::u16string text = command.toStdU16String();
        std::uint32_t pos = 0;
        return ownCommand(text) || localInterpretatorUTF8::scanStringGetOperatorAndExec(
                                       status, text, pos, context_.get(), false);
    });
    return status;
}

void localConsole::settingsApply() {
    writeLine(u"[" + settings_.text() + u"]");
    const auto namedWidth = settings_.number(u"width");
    const auto namedHeight = settings_.number(u"height");
    if (!namedWidth && !namedHeight) {
        return;
    }
    const QSize wanted(namedWidth.value_or(width()), namedHeight.value_or(height()));
    traceLine(u"width: " + numberToString(wanted.width()) + u" height: " +
                  numberToString(wanted.height()),
              "initFromFile");
    resize(wanted);
}

void localConsole::settingsFailureTell() const {
    if (!settings_.failure().empty()) {
        traceLine(settings_.failure(), "localConsoleSettings");
    }
}

std::optional<QPoint> localConsole::windowPlace() const {
    const auto x = settings_.number(u"x");
    const auto y = settings_.number(u"y");
    if (!x && !y) {
        return std::nullopt;
    }
    return QPoint(x.value_or(window()->x()), y.value_or(window()->y()));
}

void localConsole::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    settingsWork_.ask([this] { settingsSave(); });
}

void localConsole::settingsSave() {
    if (!settings_.geometrySave({window()->pos(), size()}) &&
        !std::exchange(settingsFailureTold_, true)) {
        traceLine(u"Error!!! Не удалось записать файл настроек!", "focusOutEvent");
    }
}

void localConsole::putPrompt(PromptPlace place, const QString& text) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    if (place == PromptPlace::newBlock) {
        cursor.insertBlock();
    }
    cursor.insertText(text.isEmpty() ? prompt_ : text, inputFormat_);
    cursor.endEditBlock();
    scrollToEnd(cursor);
}

void localConsole::putOutputLine(const QString& text) {
    if (busy_) {
        removeInputLine();
    }
    prompt_ = promptNormal_;
    busy_ = false;
    putResult(text);
    putPrompt(PromptPlace::newBlock);
}

void localConsole::putResult(const QString& text) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    cursor.insertBlock();
    insertOutput(cursor, text, outputFormat_);
    cursor.endEditBlock();
}

void localConsole::setBusy(bool on) {
    if (!on && busy_) {
        removeInputLine();
    }
    prompt_ = on ? promptWait_ : promptNormal_;
    busy_ = on;
}

void localConsole::COUT(const QString& text) {
    const QString typed = document()->lastBlock().text().mid(promptLength_).trimmed();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    insertOutput(cursor, text, outputFormat_);
    cursor.insertBlock();
    cursor.insertText(prompt_ + typed, inputFormat_);
    cursor.endEditBlock();
    scrollToEnd(cursor);
    paintRate_->changed();
}

QMimeData* localConsole::createMimeDataFromSelection() const {
    const QTextCursor selection = textCursor();
    QString text;
    for (QTextBlock block = document()->findBlock(selection.selectionStart());
         block.isValid() && block.position() <= selection.selectionEnd(); block = block.next()) {
        const int start = std::max(selection.selectionStart() - block.position(), 0);
        if (start == 0 && block.position() > selection.selectionStart() &&
            !continuesLineAbove(block)) {
            text += u'\n';
        }
        text += QStringView(block.text())
                    .mid(start, selection.selectionEnd() - block.position() - start);
    }
    auto* const copied = new QMimeData;
    copied->setText(text);
    return copied;
}

void localConsole::removeInputLine() {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

void localConsole::removeTypedLine(const QString& command) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    const QTextBlock typed = cursor.block().previous();
    if (!typed.text().startsWith(promptNormal_) ||
        typed.text().mid(promptLength_).trimmed() != command) {
        return;  // a function key's command stands nowhere
    }
    cursor.setPosition(typed.position());
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

void localConsole::scrollToEnd(const QTextCursor& end) {
    // What a person has selected with the mouse stays so, to be copied.
    if (!textCursor().hasSelection()) {
        setTextCursor(end);
    }
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}
