// The console's line: keys, prompts, output and limits.
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include <clocale>
#include <iostream>

#include "localConsole/console/localConsole.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "screenshot.h"

namespace {

const QString prompt = "localInterpretatorUTF8> ";

// Keys as a keyboard sends them, Russian letters included.
void type(QWidget& widget, const QString& text) {
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, &widget, static_cast<Qt::Key>(letter.toUpper().unicode()),
                            QString(letter), Qt::NoModifier, 0);
    }
}

}  // namespace

class console : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<localCoutBuffer> buffer_;
    std::unique_ptr<localConsole> console_;
    std::streambuf* before_ = nullptr;

    localConsole& shown() { return *console_; }

    QStringList lines() { return shown().toPlainText().split('\n'); }
    QString inputLine() { return shown().document()->lastBlock().text(); }
    int cursorInLine() { return shown().textCursor().positionInBlock(); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&shown(), key, modifiers);
    }

    void enter(const QString& text) {
        type(shown(), text);
        key(Qt::Key_Return);
    }

    // The colour of the first character of each line; empty lines have none.
    QColor colorOfLine(const QString& text) {
        for (QTextBlock block = shown().document()->begin(); block.isValid();
             block = block.next()) {
            if (block.text() == text) {
                return block.begin().fragment().charFormat().foreground().color();
            }
        }
        return {};
    }

    // Runs `work` when the given line of output has arrived, while the command still runs.
    template <typename Work>
    void onOutput(const QString& line, const Work& work) {
        connect(buffer_.get(), &localCoutBuffer::COUT, &shown(), [line, work](const QString& text) {
            if (text == line) {
                work();
            }
        });
    }

    static void writeFile(const QString& name, const QByteArray& bytes) {
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        QApplication::setFont(QFont("MS Sans Serif", 10));
    }

    void init() {
        buffer_ = std::make_unique<localCoutBuffer>();
        console_ = std::make_unique<localConsole>();
        connect(buffer_.get(), &localCoutBuffer::COUT, &shown(), &localConsole::COUT);
        before_ = std::cout.rdbuf(buffer_.get());
        shown().show();
        QVERIFY(QTest::qWaitForWindowActive(&shown()));
    }

    void cleanup() {
        std::cout.rdbuf(before_);
        console_.reset();
        buffer_.reset();
    }

    // --- construction

    void startsWithAPromptInGreenOnBlack() {
        QCOMPARE(shown().toPlainText(), prompt);
        QVERIFY(!shown().isBusy());
        QCOMPARE(cursorInLine(), int(prompt.size()));
        QCOMPARE(colorOfLine(prompt), QColor(Qt::green));
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(shown().palette().color(group, QPalette::Base), QColor(Qt::black));
            QCOMPARE(shown().palette().color(group, QPalette::Text), QColor(Qt::green));
        }
        QCOMPARE(shown().font().pointSize(), 12);
    }

    void takesHalfTheWidthAndThreeQuartersOfTheHeight() {
        const localConsole fresh;
        const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
        QCOMPARE(fresh.size(),
                 QSize(qRound(desktop.width() * 0.5), qRound(desktop.height() * 0.75)));
    }

    void hasAContextOfItsOwn() {
        QVERIFY(shown().context() != nullptr);
        QVERIFY(localContextUTF8::isAlive(shown().context()));
        const void* const context = shown().context();
        cleanup();
        QVERIFY(!localContextUTF8::isAlive(context));
        init();
    }

    void waitTextIsAsWideAsThePrompt() {
        shown().setBusy(true);
        shown().putPrompt(localConsole::PromptPlace::newBlock);
        QVERIFY(inputLine().startsWith("Wait!!! "));
        QCOMPARE(inputLine().size(), prompt.size());
        QCOMPARE(inputLine().trimmed(), QString("Wait!!!"));
    }

    // --- typed text

    void takesLettersOfBothAlphabets() {
        const QString typed = "? \"Az09 ~!@#$%^&*()[]{}\" + 'аяАЯёЁ'";
        type(shown(), typed);
        QCOMPARE(inputLine(), prompt + typed);
    }

    void dropsWhatIsNotTyped_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        QTest::newRow("tab") << int(Qt::Key_Tab) << "\t" << none;
        QTest::newRow("escape") << int(Qt::Key_Escape) << "\x1b" << none;
        QTest::newRow("letter beyond both alphabets") << 0xDF << "ß" << none;
        QTest::newRow("letter before А") << 0x40F << "Џ" << none;
        QTest::newRow("letter behind я") << 0x450 << "ѐ" << none;
        QTest::newRow("code 127") << 127 << "\x7f" << none;
        QTest::newRow("Ctrl+A") << int(Qt::Key_A) << "\x01"
                                << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Ctrl+V") << int(Qt::Key_V) << "\x16"
                                << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Ctrl+Z") << int(Qt::Key_Z) << "\x1a"
                                << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Alt+x") << int(Qt::Key_X) << "x" << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Shift+Insert")
            << int(Qt::Key_Insert) << "" << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("Shift+Left")
            << int(Qt::Key_Left) << "" << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("Shift+Return")
            << int(Qt::Key_Return) << "\r" << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("Enter of the keypad")
            << int(Qt::Key_Enter) << "\r" << Qt::KeyboardModifiers(Qt::KeypadModifier);
        QTest::newRow("page up") << int(Qt::Key_PageUp) << "" << none;
    }
    void dropsWhatIsNotTyped() {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QGuiApplication::clipboard()->setText("from the clipboard");
        type(shown(), "ab");
        QTest::sendKeyEvent(QTest::Click, &shown(), static_cast<Qt::Key>(key), text, modifiers, 0);
        QCOMPARE(shown().toPlainText(), prompt + "ab");
        QCOMPARE(cursorInLine(), int(prompt.size()) + 2);
        QVERIFY(!shown().textCursor().hasSelection());
    }

    void takesShiftAndKeypad() {
        QTest::sendKeyEvent(QTest::Click, &shown(), Qt::Key_A, "A", Qt::ShiftModifier, 0);
        QTest::sendKeyEvent(QTest::Click, &shown(), Qt::Key_7, "7", Qt::KeypadModifier, 0);
        QCOMPARE(inputLine(), prompt + "A7");
    }

    // --- the limits of the line

    void leftAndBackspaceStopAtThePrompt() {
        type(shown(), "ab");
        for (int i = 0; i < 5; ++i) {
            key(Qt::Key_Left);
        }
        QCOMPARE(cursorInLine(), int(prompt.size()));
        key(Qt::Key_Backspace);
        QCOMPARE(inputLine(), prompt + "ab");
        key(Qt::Key_Right);
        key(Qt::Key_Backspace);
        QCOMPARE(inputLine(), prompt + "b");
        key(Qt::Key_Backspace);
        QCOMPARE(inputLine(), prompt + "b");
    }

    void wordToTheLeftStopsAtThePrompt() {
        type(shown(), "  ab cd");
        for (int i = 0; i < 5; ++i) {
            key(Qt::Key_Left, Qt::ControlModifier);
        }
        QCOMPARE(cursorInLine(), int(prompt.size()));
    }

    void homeAndEndGoToBothEndsOfTheText() {
        type(shown(), "abc");
        key(Qt::Key_Home);
        QCOMPARE(cursorInLine(), int(prompt.size()));
        type(shown(), "x");
        QCOMPARE(inputLine(), prompt + "xabc");
        key(Qt::Key_End);
        QCOMPARE(cursorInLine(), int(prompt.size()) + 4);
    }

    void homeAndEndDoNotLookAtModifiersAndSelectNothing() {
        type(shown(), "abc");
        for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::KeypadModifier}) {
            key(Qt::Key_Home, modifier);
            QCOMPARE(cursorInLine(), int(prompt.size()));
            QVERIFY(!shown().textCursor().hasSelection());
            key(Qt::Key_End, modifier);
            QCOMPARE(cursorInLine(), int(prompt.size()) + 3);
            QVERIFY(!shown().textCursor().hasSelection());
        }
    }

    void rightStopsAtTheEndAndDeleteTakesTheNext() {
        type(shown(), "abc");
        key(Qt::Key_Right);
        QCOMPARE(cursorInLine(), int(prompt.size()) + 3);
        key(Qt::Key_Delete);
        QCOMPARE(inputLine(), prompt + "abc");
        key(Qt::Key_Home);
        key(Qt::Key_Delete);
        QCOMPARE(inputLine(), prompt + "bc");
    }

    void returnActsOnTheWholeLineWhereverTheCursorStands() {
        type(shown(), "? 12");
        key(Qt::Key_Left);
        key(Qt::Key_Return);
        QCOMPARE(lines(), QStringList({prompt + "? 12", "12", prompt}));
    }

    // --- mouse and clipboard

    void clickIntoOldOutputDoesNotTakeTheInputAway_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("letter") << int(Qt::Key_X) << "x"
                                << "half x";
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << ""
                                   << "half";
        QTest::newRow("delete") << int(Qt::Key_Delete) << ""
                                << "half ";
        QTest::newRow("left") << int(Qt::Key_Left) << ""
                              << "half ";
    }
    void clickIntoOldOutputDoesNotTakeTheInputAway() {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(QString, line);
        enter("? \"some output\"");
        type(shown(), "half ");
        const QStringList old = lines().mid(0, 2);
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, QPoint(30, 8));
        QVERIFY(shown().textCursor().blockNumber() == 0);
        QTest::sendKeyEvent(QTest::Click, &shown(), static_cast<Qt::Key>(key), text, Qt::NoModifier,
                            0);
        QCOMPARE(lines(), old + QStringList({prompt + line}));
        QCOMPARE(shown().textCursor().block(), shown().document()->lastBlock());
    }

    void returnAfterAClickActsOnTheInput() {
        type(shown(), "? 1+1");
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, QPoint(5, 8));
        key(Qt::Key_Return);
        QCOMPARE(lines(), QStringList({prompt + "? 1+1", "2", prompt}));
    }

    void selectedOutputIsNotReplaced() {
        enter("? 5");
        type(shown(), "ab");
        shown().selectAll();
        type(shown(), "c");
        QCOMPARE(lines(), QStringList({prompt + "? 5", "5", prompt + "abc"}));
        shown().selectAll();
        key(Qt::Key_Backspace);
        QCOMPARE(lines(), QStringList({prompt + "? 5", "5", prompt + "ab"}));
        shown().selectAll();
        key(Qt::Key_Delete);
        key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(lines(), QStringList({prompt + "? 5", "5", prompt + "ab"}));
    }

    void selectionWithinTheInputIsReplaced() {
        type(shown(), "abcd");
        QTextCursor cursor = shown().textCursor();
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, 2);
        shown().setTextCursor(cursor);
        type(shown(), "x");
        QCOMPARE(inputLine(), prompt + "abx");
    }

    void pasteByMouseGoesToTheInputAsOneLine() {
        enter("? 5");
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, QPoint(5, 8));
        QGuiApplication::clipboard()->setText("one\ntwo\n");
        shown().paste();
        QCOMPARE(lines(), QStringList({prompt + "? 5", "5", prompt + "one two"}));
        QCOMPARE(cursorInLine(), int(prompt.size()) + 7);
        shown().setBusy(true);
        shown().paste();
        QCOMPARE(lines().last(), prompt + "one two");
        shown().setBusy(false);
    }

    // --- the Return key

    void emptyLineGivesANewPromptOnly() {
        key(Qt::Key_Return);
        QCOMPARE(lines(), QStringList({prompt, prompt}));
        QVERIFY(!shown().isBusy());
    }

    void blanksGiveAnEmptyLineOfOutput() {
        enter("   ");
        QCOMPARE(lines(), QStringList({prompt + "   ", "", prompt}));
        QVERIFY(!shown().isBusy());
    }

    void oneCharacterIsNoCommand_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("question mark") << "?";
        QTest::newRow("latin") << "q";
        QTest::newRow("digit") << "5";
        QTest::newRow("russian") << "ж";
    }
    void oneCharacterIsNoCommand() {
        QFETCH(QString, command);
        enter(" " + command + " ");
        QCOMPARE(lines(),
                 QStringList({prompt + " " + command + " ", "Syntax ERROR: " + command, prompt}));
        QCOMPARE(colorOfLine("Syntax ERROR: " + command), QColor(Qt::gray));
        QVERIFY(!shown().isBusy());
    }

    void commandShowsItsOutputInGrayAboveANewPrompt() {
        enter("? 2+3*4");
        QCOMPARE(lines(), QStringList({prompt + "? 2+3*4", "14", prompt}));
        QCOMPARE(colorOfLine("14"), QColor(Qt::gray));
        QCOMPARE(colorOfLine(prompt + "? 2+3*4"), QColor(Qt::green));
        QCOMPARE(colorOfLine(prompt), QColor(Qt::green));
        QVERIFY(!shown().isBusy());
        type(shown(), "g");
        QCOMPARE(colorOfLine(prompt + "g"), QColor(Qt::green));
    }

    void commandWithoutOutputShowsThePromptOnly() {
        enter("x = 7");
        QCOMPARE(lines(), QStringList({prompt + "x = 7", prompt}));
    }

    void variablesStayInTheContext() {
        enter("сумма = 40");
        enter("сумма = сумма + 2");
        enter("? сумма");
        QCOMPARE(lines().mid(2), QStringList({prompt + "? сумма", "42", prompt}));
        QVERIFY(shown().context()->varFind(u"сумма") != nullptr);
        enter("clear memory");
        QVERIFY(shown().context()->varFind(u"сумма") == nullptr);
    }

    void failedCommandShowsWhatTheLanguageWrote() {
        enter("? nothere");
        QVERIFY(lines().size() > 2);
        QVERIFY2(lines()[lines().size() - 2].startsWith("ERROR!!! "),
                 qPrintable(lines().join('|')));
        QCOMPARE(lines().last(), prompt);
        QVERIFY(!shown().isBusy());
    }

    void numbersKeepTheirPoint() {
        enter("? 3/2");
        QCOMPARE(lines()[1], QString("1.5"));
    }

    void programRunsInTheContextOfTheConsole() {
        writeFile("sets.prg", "fromProgram = 11;\n? \"вывод\";\n");
        enter("do \"sets.prg\"");
        enter("? fromProgram");
        QCOMPARE(lines(), QStringList({prompt + "do \"sets.prg\"", "вывод",
                                       prompt + "? fromProgram", "11", prompt}));
    }

    // --- what a running command shows

    void waitTextStandsBelowTheOutputOfARunningProgram() {
        writeFile("two.prg", "? \"first\";\n? \"second\";\n");
        QStringList seen;
        bool busy = false;
        onOutput("first", [&] {
            seen = lines();
            busy = shown().isBusy();
        });
        enter("do \"two.prg\"");
        QVERIFY(busy);
        QCOMPARE(seen.size(), 3);
        QCOMPARE(seen[1], QString("first"));
        QCOMPARE(seen[2], QString("Wait!!!").leftJustified(int(prompt.size())));
        QCOMPARE(lines(), QStringList({prompt + "do \"two.prg\"", "first", "second", prompt}));
    }

    void keysAreDroppedWhileACommandRuns() {
        writeFile("two.prg", "? \"first\";\n? \"second\";\n");
        onOutput("first", [&] {
            enter("lost");
            key(Qt::Key_Backspace);
            // Keys that wait for the event loop while the command runs are lost as well.
            QCoreApplication::postEvent(
                &shown(), new QKeyEvent(QEvent::KeyPress, Qt::Key_L, Qt::NoModifier, "l"));
        });
        enter("do \"two.prg\"");
        QCoreApplication::processEvents();
        QCOMPARE(lines(), QStringList({prompt + "do \"two.prg\"", "first", "second", prompt}));
        type(shown(), "kept");
        QCOMPARE(inputLine(), prompt + "kept");
    }

    void closingWaitsForTheEndOfTheCommand() {
        onOutput("5", [&] { QVERIFY(!shown().close()); });
        enter("? 5");
        QVERIFY(shown().isVisible());
        QTRY_VERIFY(!shown().isVisible());
    }

    // --- output that arrives while nothing runs

    void outputStandsAboveTheHalfTypedText() {
        type(shown(), "  half ");
        writeLine(u"news");
        QCOMPARE(lines(), QStringList({"news", prompt + "half"}));
        QCOMPARE(colorOfLine("news"), QColor(Qt::gray));
        QCOMPARE(colorOfLine(prompt + "half"), QColor(Qt::green));
        QCOMPARE(cursorInLine(), int(prompt.size()) + 4);
        type(shown(), "ж");
        QCOMPARE(inputLine(), prompt + "halfж");
    }

    void outputFindsTheInputAfterAClickAbove() {
        enter("? 5");
        type(shown(), "half");
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, QPoint(5, 8));
        writeLine(u"news");
        QCOMPARE(lines(), QStringList({prompt + "? 5", "5", "news", prompt + "half"}));
    }

    void textWithoutLineFeedDoesNotAppear() {
        std::cout << "waiting" << std::flush;
        QCOMPARE(lines(), QStringList({prompt}));
        std::cout << " no more" << std::endl;
        QCOMPARE(lines(), QStringList({"waiting no more", prompt}));
    }

    void bytesThatAreNoTextDoNotBreakTheConsole() {
        std::cout << "a\xFF\xD0\n";
        QCOMPARE(lines(), QStringList({"a\uFFFD\uFFFD", prompt}));
    }

    void emptyLinesAreKept() {
        writeLine();
        writeLine();
        QCOMPARE(lines(), QStringList({"", "", prompt}));
    }

    void viewStaysAtTheEnd() {
        for (int i = 0; i < 300; ++i) {
            writeLine(u"line");
        }
        QTRY_VERIFY(shown().viewport()->rect().contains(shown().cursorRect()));
        QCOMPARE(lines().size(), 301);
    }

    void longestLinesAreCutIntoPieces() {
        const QString longLine = QString("абвгд").repeated(2000) + "end";
        writeLine(longLine.toStdU16String());
        const QStringList all = lines();
        QVERIFY(all.size() > 2);
        QCOMPARE(all.mid(0, all.size() - 1).join(""), longLine);
        QCOMPARE(all.last(), prompt);
    }

    void longLineIsCopiedAsOneLine() {
        const QString longLine = QString("абвгд").repeated(2000) + "end";
        writeLine(u"first");
        writeLine(longLine.toStdU16String());
        writeLine(u"last");
        shown().selectAll();
        shown().copy();
        const QString all = QStringList({"first", longLine, "last", prompt}).join('\n');
        QCOMPARE(QGuiApplication::clipboard()->text(), all);
        // A part of it, over the end of a piece, and the end of the line.
        QTextCursor cursor = shown().textCursor();
        cursor.setPosition(3990);
        cursor.setPosition(int(all.size()) + 2 - int(prompt.size()), QTextCursor::KeepAnchor);
        shown().setTextCursor(cursor);
        shown().copy();
        // Two breaks are no part of the text.
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 all.mid(3990, all.size() - 3990 - prompt.size()));
    }

    void outputLeavesASelectionAlone() {
        writeLine(u"some words");
        QTextCursor cursor = shown().textCursor();
        cursor.setPosition(5);
        cursor.setPosition(10, QTextCursor::KeepAnchor);
        shown().setTextCursor(cursor);
        writeLine(u"more");
        QCOMPARE(shown().textCursor().selectedText(), QString("words"));
        shown().cmdExec("? 1");
        QCOMPARE(shown().textCursor().selectedText(), QString("words"));
        // A key goes to the input line as ever.
        type(shown(), "x");
        QCOMPARE(inputLine(), prompt + "x");
        QVERIFY(!shown().textCursor().hasSelection());
        // What is selected there goes with the line; the cursor stays in the new one.
        cursor = shown().textCursor();
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
        shown().setTextCursor(cursor);
        writeLine(u"more");
        QCOMPARE(inputLine(), prompt + "x");
        QCOMPARE(cursorInLine(), int(inputLine().size()));
    }

    void piecesOfALongLineHoldWholeCharacters() {
        // One of the two lines has a piece's end in the middle of such a character.
        for (const QString& start : {QString(), QString("a")}) {
            shown().clear();
            const QString longLine = start + QString("\U0001F600").repeated(5000);
            std::cout << longLine.toStdString() << std::endl;
            QVERIFY(lines().size() > 2);
            for (const QString& line : lines()) {
                QVERIFY(line.isEmpty() || !line.front().isLowSurrogate());
            }
        }
    }

    void oldLinesGoWhenThereAreTooMany() {
        shown().hide();
        for (int i = 0; i < 100050; ++i) {
            std::cout << "x\n";
        }
        QCOMPARE(shown().document()->blockCount(), 100000);
        QCOMPARE(inputLine(), prompt);
        type(shown(), "? 6*7");
        key(Qt::Key_Return);
        QCOMPARE(shown().document()->lastBlock().previous().text(), QString("42"));
    }

    // --- the console's own lines

    void outputLineStandsInPlaceOfTheWaitLine() {
        shown().setBusy(true);
        shown().putPrompt(localConsole::PromptPlace::newBlock);
        shown().putOutputLine("done");
        QCOMPARE(lines(), QStringList({prompt, "done", prompt}));
        QVERIFY(!shown().isBusy());
    }

    void outputLineLeavesATypedLineWhereItIs() {
        type(shown(), "abc");
        shown().putOutputLine("");
        QCOMPARE(lines(), QStringList({prompt + "abc", "", prompt}));
    }

    void resultHasNoPrompt() {
        shown().putResult("alone");
        QCOMPARE(lines(), QStringList({prompt, "alone"}));
        QCOMPARE(colorOfLine("alone"), QColor(Qt::gray));
    }

    void promptTakesATextOfItsOwn() {
        shown().putPrompt(localConsole::PromptPlace::newBlock, "own> ");
        shown().putPrompt(localConsole::PromptPlace::currentBlock);
        QCOMPARE(lines(), QStringList({prompt, "own> " + prompt}));
    }

    void endOfBusyRemovesTheWaitLine() {
        shown().setBusy(true);
        shown().putPrompt(localConsole::PromptPlace::newBlock);
        shown().setBusy(false);
        QCOMPARE(lines(), QStringList({prompt}));
        shown().setBusy(false);
        QCOMPARE(lines(), QStringList({prompt}));
    }

    void quitSaysGoodByeAndCloses() {
        enter("quit");
        QVERIFY(!shown().isVisible());
        QVERIFY(lines().contains("Good bye!"));
    }

    // --- for a person to look at

    void picture() {
        writeFile("primer.prg", "FOR i = 1 TO 3 DO\n? i*i;\nENDDO;\n");
        shown().resize(760, 420);
        enter("? 2+3*4");
        enter("имя = \"Корво Ёё\"");
        enter("? имя");
        enter("do \"primer.prg\"");
        enter("? nothere");
        enter("q");
        type(shown(), "half typed, наполовину");
        QVERIFY(saveScreenshot(shown(), "consoleLine"));
    }
};

QTEST_MAIN(console)
#include "console.moc"
