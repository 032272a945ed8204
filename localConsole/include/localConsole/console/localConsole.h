// The console: a command line of green on black, and the host of the context in which typed lines
// act.
//
// The last block of the document is the input line: a prompt and what is being typed behind it. All
// blocks above are history that nobody can edit. Output is put above the input line, which is laid
// anew below it, so that a half-typed command survives a line that arrives meanwhile. Each of these
// steps works at the end of the document and costs the same however much stands above.
//
// While a command runs the console is busy: the prompt shows a wait text and every key is dropped.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QString>
#include <QTextCharFormat>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "localConsole/console/localConsoleHistory.h"
#include "localConsole/console/localConsoleSettings.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/window/localVclTurn.h"
#include "localVCL/window/localVclWindow.h"

class MyThread;
class localContextUTF8;
class localPaintRate;
struct localOperatorCompiled;

class localConsole : public QPlainTextEdit, public localVclWindowContent {
    Q_OBJECT

public:
    enum class PromptPlace { currentBlock, newBlock };

    explicit localConsole(QWidget* parent = nullptr);
    ~localConsole() override;

    localContextUTF8* context() const { return context_.get(); }
    bool isBusy() const { return busy_; }

    // Acts on a command as if it had been typed: the console's own words first, the language else.
    // The line below shows the prompt in force meanwhile; afterwards the console is free and shows
    // a prompt. QUIT closes the window, and with it this object once the event loop is reached
    // again.
    void cmdExec(const QString& command);

    // Open forms are asked first.
    bool windowMayClose() override;

    // Puts `text`, or the prompt in force when it is empty, at the end of the document.
    void putPrompt(PromptPlace place, const QString& text = {});
    // A line of output from the console itself, in place of the line of a running command, and a
    // new prompt. Ends being busy.
    void putOutputLine(const QString& text);
    // A line of output with no prompt behind it.
    void putResult(const QString& text);
    // Takes the wait text or the normal prompt into force; the end of being busy removes the wait
    // line.
    void setBusy(bool on);

    // Writes a line why there are no settings, if so.
    void settingsFailureTell() const;
    // Where the window stood last. A coordinate that the settings do not name is that of the window
    // now; nothing when they name none. A line tells why settings could not be read.
    std::optional<QPoint> windowPlace() const;
    // The command of a function key, 1 to 12; empty when the key has none.
    const QString& keyCommand(int key) const {
        return keyCommands_[static_cast<std::size_t>(key - 1)];
    }
    // The editor that shows a program under DEBUG. Null when its window was closed.
    localVclWidgetEditor* editor() const { return editor_; }
    // The run of a program under DEBUG, which may have ended. Null when there was none.
    MyThread* thread() const { return thread_.get(); }

signals:
    void commandToThread(std::u16string command);

public slots:
    // A line of the standard output stream: put above the input line.
    void COUT(const QString& text);
    void fromThread(std::u16string* text);
    void fromThreadAsQString(const QString& text);
    // Shows the statement at which a program under DEBUG stands.
    void operChangedSlot(const localOperatorCompiled* node);

protected:
    // Writes the window's geometry into the settings, now or as soon as the language's turn is
    // free.
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    // Text alone, a long line of output being one line.
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    localConsole(QWidget* parent, const localTurn::Hold& turn);

    // Does the work under the language's turn, when a program under DEBUG has come to its next
    // stop. Not at all when the window is asked to close before.
    void underTurn(const std::function<void()>& work);
    // Runs a command, by the console's own words or in the language. Gives the status it left.
    int act(const QString& command);
    // Acts on a command that begins with one of the console's own words; false for any other.
    bool ownCommand(const std::u16string& command);
    // "# expression": the line removes itself and its value is written.
    void inlineCalculation(const QString& command);
    void commandDebug(const std::u16string& text);
    // Ends the program under DEBUG where it stands.
    void threadEnd();
    void commandHelpAsPrg();
    void tryExample();

    void settingsApply();
    void settingsSave();
    void keyCommandsFill();
    // Runs what a function key stands for. False when the key is none, or has no command.
    bool functionKey(const QKeyEvent& event);
    // The keys that edit the input line.
    void editKey(QKeyEvent* event);
    void historyShow(const std::optional<QString>& line);
    void returnPressed();
    // Position in the document where the text behind the prompt starts.
    int inputStart() const;
    // Brings a cursor that was moved away by the mouse back to the input line.
    void cursorToInput();
    // Removes the last block, and with it the line break above.
    void removeInputLine();
    // Removes the line above the last block when it is that of a typed command.
    void removeTypedLine(const QString& command);
    void scrollToEnd(const QTextCursor& end);

    std::unique_ptr<localContextUTF8> context_;
    bool busy_ = false;
    int promptLength_ = 0;
    QString prompt_;
    QString promptNormal_;
    QString promptWait_;
    QTextCharFormat inputFormat_;
    QTextCharFormat outputFormat_;
    std::unique_ptr<localPaintRate> paintRate_;
    localConsoleSettings settings_;
    localVclTurnWork settingsWork_;
    bool settingsFailureTold_ = false;
    localConsoleHistory history_;
    std::array<QString, 12> keyCommands_;
    QPointer<localVclWidgetEditor> editor_;
    std::vector<QPointer<localVclWidgetEditor>> watched_;  // editors of all DEBUG and TRACE
    QPointer<localVclWidgetEditor> traced_;  // the editor of the TRACE that is just ending
    std::unique_ptr<MyThread> thread_;
};
