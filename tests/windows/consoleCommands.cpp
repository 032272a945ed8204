// The console's own words, its function keys, and the keys that are swallowed.
#include "consoleTest.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "screenshot.h"

using consoleTest::json;
using consoleTest::prompt;
using consoleTest::read;
using consoleTest::withoutTail;
using consoleTest::write;

namespace {

const QString manualName = "testHelpLocalInterpretatorUtf8.prg";

localVclWidgetEditor* openEditor() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const editor = widget->findChild<localVclWidgetEditor*>()) {
            return editor;
        }
    }
    return nullptr;
}

}  // namespace

class consoleCommands : public consoleTest::test {
    Q_OBJECT

private:
    bool has(const char16_t* variable) { return shown().context()->varFind(variable) != nullptr; }

    // A manual that leaves a file behind.
    static void writeManual() {
        write(manualName, "STRINGAPPENDTOFILE(\"read\", \"manual.txt\");\n");
    }

private slots:
    void init() {
        test::init();
        write("console_history.log", "");
        start();
    }

    // --- the inline calculation

    void calculationRemovesItselfAndWritesItsValue() {
        QStringList written = outputOf("# 2+2");
        QCOMPARE(written.size(), 2);
        QCOMPARE(withoutTail(written[0]), QString("cmdWStr:  [# 2+2]"));
        QVERIFY(written[0].contains(" func: cmdExec "));
        QCOMPARE(written[1], QString("4"));
        QCOMPARE(lines(), QStringList({written[0], "4", prompt}));
        QVERIFY(!shown().isBusy());
    }

    void calculationLeavesWhatStandsAbove() {
        enter("? 1");
        enter("  # 2+2 ");
        const QString written = output_[1];
        QCOMPARE(lines(), QStringList({prompt + "? 1", "1", written, "4", prompt}));
    }

    void calculationOfAFunctionKeyLeavesTheLineAbove() {
        end();
        write("localConsole.ini", json("{'F3':'# 2+2'}"));
        start();
        consoleTest::type(shown(), "? 1");
        key(Qt::Key_F3);
        QCOMPARE(lines(), QStringList({prompt + "? 1", output_[0], "4", prompt}));
    }

    void calculationSeesTheContext() {
        enter("сумма = 40");
        QCOMPARE(outputOf("# сумма+2").last(), QString("42"));
    }

    void calculationThatFailsWritesTheStatus() {
        const QStringList written = outputOf("# nothere");
        QCOMPARE(written.last(), QString("Неверный атрибут."));
        QCOMPARE(lines(), written + QStringList({prompt}));
        QVERIFY(!shown().isBusy());
    }

    void calculationWithARestIsASyntaxError() {
        enter("# 2+2 3");
        QCOMPARE(lines(), QStringList({output_[0], "Syntax ERROR: # 2+2 3", prompt, prompt}));
        QVERIFY(!output_.contains("4"));
        QCOMPARE(outputOf("? 5"), QStringList({"5"}));
    }

    void calculationNeedsItsBlank() {
        outputOf("#2+2");
        QVERIFY(!lines().contains("4"));
        QCOMPARE(inputLine(), prompt);
    }

    // --- the function keys

    void functionKeysHaveTheirCommands() {
        const QStringList commands = {"help",           "trying",       "", "dir", "", "",
                                      "display memory", "clear memory", "", "",    "", ""};
        for (int i = 1; i <= 12; ++i) {
            QCOMPARE(shown().keyCommand(i), commands[i - 1]);
        }
    }

    void f1ShowsTheBriefManual() {
        key(Qt::Key_F1);
        QVERIFY2(output_.contains("******** КОМАНДЫ ********************"),
                 qPrintable(output_.join('|')));
        QCOMPARE(inputLine(), prompt);
        QVERIFY(!shown().isBusy());
    }

    void f2Tries() {
        key(Qt::Key_F2);
        QCOMPARE(output_.size(), 2);
        QCOMPARE(output_[0], QString());
        QVERIFY(output_[1].startsWith(" func: tryExample file: localConsoleCommands.cpp line: "));
    }

    void f4ShowsTheFolder() {
        key(Qt::Key_F4);
        QCOMPARE(host_.calls, std::vector<std::string>{"showDirectory"});
    }

    void f7ListsAndF8EmptiesTheContext() {
        enter("a = 1");
        enter("б = 2");
        takeOutput();
        key(Qt::Key_F7);
        QVERIFY(output_.contains("СПИСОК ПЕРЕМЕННЫХ *************** "));
        QCOMPARE(output_.filter("var [A]").size(), 1);
        QCOMPARE(output_.filter("var [Б]").size(), 1);
        key(Qt::Key_F8);
        QVERIFY(!has(u"a"));
        QVERIFY(!has(u"б"));
    }

    void keysWithoutACommandDoNothing_data() {
        QTest::addColumn<int>("key");
        for (const int number : {3, 5, 6, 9, 10, 11, 12}) {
            QTest::addRow("F%d", number) << Qt::Key_F1 + number - 1;
        }
    }
    void keysWithoutACommandDoNothing() {
        QFETCH(int, key);
        consoleTest::type(shown(), "half");
        QTest::keyClick(&shown(), static_cast<Qt::Key>(key));
        QCOMPARE(lines(), QStringList({prompt + "half"}));
        QVERIFY(output_.isEmpty());
    }

    void aKeyLeavesTheHalfTypedLineAboveItsOutput() {
        consoleTest::type(shown(), "half");
        key(Qt::Key_F2);
        QCOMPARE(lines().first(), prompt + "half");
        QCOMPARE(inputLine(), prompt);
    }

    void aKeysCommandDoesNotEnterTheHistory() {
        enter("? 1");
        key(Qt::Key_F2);
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 1");
        QCOMPARE(read("console_history.log"), QByteArray("? 1\n"));
    }

    void keysWithModifiersDoNothing_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        const Qt::KeyboardModifiers control = Qt::ControlModifier;
        QTest::newRow("Shift+F2") << int(Qt::Key_F2) << shift;
        QTest::newRow("Ctrl+F8") << int(Qt::Key_F8) << control;
        QTest::newRow("Alt+F7") << int(Qt::Key_F7) << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Ctrl+Shift+F1") << int(Qt::Key_F1) << (control | shift);
        QTest::newRow("Shift+F10") << int(Qt::Key_F10) << shift;
    }
    void keysWithModifiersDoNothing() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        write("localConsole.ini", json("{'F10': '? 10'}"));
        start();
        enter("a = 1");
        takeOutput();
        QTest::keyClick(&shown(), static_cast<Qt::Key>(key), modifiers);
        QVERIFY(has(u"a"));
        QVERIFY(output_.isEmpty());
        QVERIFY(host_.calls.empty());
        QCOMPARE(inputLine(), prompt);
    }

    void settingsNameCommandsOfKeys() {
        write("localConsole.ini",
              json("{'F1': '? 101', 'F3': '? 103', 'F5': 'имя = \\'Ёж\\'', 'F8': '', "
                   "'F10': '? 110', 'F12': '? 112'}"));
        start();
        key(Qt::Key_F1);
        key(Qt::Key_F3);
        key(Qt::Key_F10);
        key(Qt::Key_F12, Qt::ControlModifier);  // F11 and F12 act with any modifier
        QCOMPARE(takeOutput(), QStringList({"101", "103", "110", "112"}));
        key(Qt::Key_F5);
        QVERIFY(has(u"имя"));
        key(Qt::Key_F8);
        QVERIFY(has(u"имя"));
        QCOMPARE(shown().keyCommand(2), QString("trying"));
    }

    // --- the manual

    void manualKeysRunTheManual_data() {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Alt+F1") << Qt::KeyboardModifiers(Qt::AltModifier);
        QTest::newRow("Ctrl+F1") << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift+F1") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }
    void manualKeysRunTheManual() {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        writeManual();
        key(Qt::Key_F1, modifiers);
        QVERIFY(read("manual.txt").startsWith("read"));
        QCOMPARE(host_.calls, std::vector<std::string>());
        QCOMPARE(inputLine(), prompt);
    }

    void f1WithoutACommandIsTheManual() {
        write("localConsole.ini", json("{'F1': ''}"));
        writeManual();
        start();
        consoleTest::type(shown(), "half");
        key(Qt::Key_F1);
        QVERIFY(read("manual.txt").startsWith("read"));
        QCOMPARE(lines(), QStringList({prompt + "half", "", prompt}));
        QVERIFY(!shown().isBusy());
    }

    void manualIsCutDownToFourLetters() {
        writeManual();
        enter("manu");
        QVERIFY(read("manual.txt").startsWith("read"));
        QFile::remove("manual.txt");
        enter("man");
        QVERIFY(!QFile::exists("manual.txt"));
    }

    void manualDoesNotTouchTheConsolesContext() {
        write(manualName, "fromManual = 1;\n");
        enter("MANUAL");
        QVERIFY(!has(u"fromManual"));
        const auto address = qApp->property("localGlobalContext").toULongLong();
        auto* const own = reinterpret_cast<localContextUTF8*>(static_cast<quintptr>(address));
        QVERIFY(own != nullptr);
        QVERIFY(own->varFind(u"fromManual") != nullptr);
        QVERIFY(own != shown().context());
    }

    void manualIsFoundAmongTheSamples() {
        QVERIFY(QDir().mkdir("prgTest"));
        write("prgTest/" + manualName, "STRINGAPPENDTOFILE(\"read\", \"manual.txt\");\n");
        enter("MANUAL");
        QVERIFY(read("manual.txt").startsWith("read"));
    }

    void manualThatFailsWritesTheStatus() {
        write(manualName, "? nothere;\n");
        const QStringList written = outputOf("MANUAL");
        QVERIFY(written.last().startsWith("Неверный атрибут. func: commandHelpAsPrg "));
    }

    void withoutAManualABoxTells() {
        enter("MANUAL");
        const QString wanted = "warning [Help] [Файл " + manualName + " не найден!]";
        QCOMPARE(host_.calls, std::vector{wanted.toStdString()});
        QCOMPARE(inputLine(), prompt);
    }

    // --- other keys

    void altF10TogglesTheWindow() {
        QVERIFY(!shown().isMaximized());
        key(Qt::Key_F10, Qt::AltModifier);
        QVERIFY(shown().isMaximized());
        key(Qt::Key_F10, Qt::AltModifier);
        QVERIFY(!shown().isMaximized());
        QCOMPARE(lines(), QStringList({prompt}));
    }

    void controlCGivesAFreshPrompt_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Ctrl+C") << int(Qt::Key_C);
        QTest::newRow("Ctrl+Stop") << int(Qt::Key_Stop);
    }
    void controlCGivesAFreshPrompt() {
        QFETCH(int, key);
        consoleTest::type(shown(), "half");
        QTest::keyClick(&shown(), static_cast<Qt::Key>(key), Qt::ControlModifier);
        QCOMPARE(lines(), QStringList({prompt + "half", "", prompt}));
        enter("? 7");
        QCOMPARE(output_, QStringList({"7"}));
    }

    void insertDoesNotChangeTheModeOfTyping() {
        consoleTest::type(shown(), "ac");
        key(Qt::Key_Insert);
        key(Qt::Key_Left);
        consoleTest::type(shown(), "b");
        QCOMPARE(inputLine(), prompt + "abc");
        QVERIFY(!shown().overwriteMode());
    }

    void droppedKeysChangeNothing_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        const Qt::KeyboardModifiers none = Qt::NoModifier;
        const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
        QTest::newRow("Shift+Up") << int(Qt::Key_Up) << shift;
        QTest::newRow("Ctrl+Down")
            << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift+Delete") << int(Qt::Key_Delete) << shift;
        QTest::newRow("Shift+Backspace") << int(Qt::Key_Backspace) << shift;
        QTest::newRow("page down") << int(Qt::Key_PageDown) << none;
        QTest::newRow("F13") << int(Qt::Key_F13) << none;
        QTest::newRow("pause") << int(Qt::Key_Pause) << none;
    }
    void droppedKeysChangeNothing() {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        enter("? 1");
        consoleTest::type(shown(), "ab");
        this->key(Qt::Key_Left);
        const QStringList before = lines();
        const int place = shown().textCursor().position();
        QTest::keyClick(&shown(), static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(lines(), before);
        QCOMPARE(shown().textCursor().position(), place);
        QVERIFY(!shown().textCursor().hasSelection());
    }

    // --- up and down

    void upGoesToTheOldestAndStays() {
        for (const char* command : {"? 1", "? 2", "? 3"}) {
            enter(command);
        }
        consoleTest::type(shown(), "half");
        for (const char* wanted : {"? 3", "? 2", "? 1", "? 1"}) {
            key(Qt::Key_Up);
            QCOMPARE(inputLine(), prompt + wanted);
            QCOMPARE(shown().textCursor().positionInBlock(), int(inputLine().size()));
        }
    }

    void downShowsTheLineBehindTheOneShownAndThenNothing() {
        for (const char* command : {"? 1", "? 2", "? 3"}) {
            enter(command);
        }
        key(Qt::Key_Up);
        key(Qt::Key_Up);
        key(Qt::Key_Up);
        for (const char* wanted : {"? 2", "? 3", ""}) {
            key(Qt::Key_Down);
            QCOMPARE(inputLine(), prompt + wanted);
        }
        consoleTest::type(shown(), "half");
        key(Qt::Key_Down);
        QCOMPARE(inputLine(), prompt + "half");
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 3");
    }

    void oneStepBackAndForwardGivesAnEmptyLine() {
        enter("? 1");
        enter("? 2");
        key(Qt::Key_Up);
        key(Qt::Key_Down);
        QCOMPARE(inputLine(), prompt);
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 2");
    }

    void upAndDownWithoutAHistoryDoNothing() {
        consoleTest::type(shown(), "half");
        key(Qt::Key_Up);
        key(Qt::Key_Down);
        QCOMPARE(lines(), QStringList({prompt + "half"}));
    }

    void aLineOfTheHistoryMayBeEditedAndRun() {
        enter("? 1");
        key(Qt::Key_Up);
        consoleTest::type(shown(), "0");
        takeOutput();
        key(Qt::Key_Return);
        QCOMPARE(output_, QStringList({"10"}));
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 10");
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 1");
    }

    void upBringsTheCursorBackFromTheOutput() {
        enter("? 1");
        QTest::mouseClick(shown().viewport(), Qt::LeftButton, {}, QPoint(30, 8));
        key(Qt::Key_Up);
        QCOMPARE(lines(), QStringList({prompt + "? 1", "1", prompt + "? 1"}));
        QCOMPARE(shown().textCursor().block(), shown().document()->lastBlock());
    }

    // --- the marked words

    void clearOfTheConsoleTakesAPattern() {
        for (const char* command : {"number = 1", "nut = 2", "xnu = 3", "имя = 4"}) {
            enter(command);
        }
        const QStringList written = outputOf("C1LEAR MEMORY NU*");
        QCOMPARE(written.size(), 1);
        QVERIFY(written[0].startsWith(" func: commandCleaMemo "));
        QVERIFY(!has(u"number"));
        QVERIFY(!has(u"nut"));
        QVERIFY(has(u"xnu"));
        QVERIFY(has(u"имя"));
        enter("c1le memo им?");
        QVERIFY(!has(u"имя"));
        enter("c1lear memory");
        QVERIFY(!has(u"xnu"));
        QVERIFY(shown().context()->variables().empty());
    }

    void displayOfTheConsoleSortsAndTakesAPattern() {
        for (const char* command : {"nut = 2", "number = 1", "xnu = 3"}) {
            enter(command);
        }
        QStringList written = outputOf("D1ISPLAY MEMORY nu*");
        QCOMPARE(written.size(), 3);
        QCOMPARE(written[0], QString("regExprString = [nu*] "));
        QVERIFY(written[1].startsWith("0 ["));
        QVERIFY(written[1].contains("var [NUMBER]"));
        QVERIFY(written[2].startsWith("1 ["));
        QVERIFY(written[2].contains("var [NUT]"));
        written = outputOf("d1isp memo");
        QCOMPARE(written.size(), 4);
        QCOMPARE(written[0], QString("regExprString = [] "));
        QVERIFY(written[3].contains("var [XNU]"));
    }

    void displayClassOfTheConsoleListsClasses() {
        const QStringList written = outputOf("D1ISPLAY CLASS");
        QVERIFY(written.size() >= 2);
        for (int i = 0; i < written.size(); ++i) {
            QVERIFY(written[i].startsWith(QString::number(i) + " "));
            QVERIFY2(written[i].contains(" (") && written[i].contains(")  - "),
                     qPrintable(written[i]));
        }
        QCOMPARE(written.filter(QRegularExpression("^[0-9]+ VALUELIST \\(")).size(), 1);
    }

    void wrongSecondWordIsASyntaxError_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("word");
        const QString edit = "E" + QString(40, '1') + "DIT";
        QTest::newRow("clear") << "c1lear all"
                               << "C1LEAR";
        QTest::newRow("clear alone") << "C1LE"
                                     << "C1LE";
        QTest::newRow("display") << "D1ISPLAY CONTEXT"
                                 << "D1ISPLAY";
        QTest::newRow("edit") << edit + " FILE x" << edit;
        QTest::newRow("edit without a file") << edit + " COMMAND" << edit;
    }
    void wrongSecondWordIsASyntaxError() {
        QFETCH(QString, command);
        QFETCH(QString, word);
        enter("a = 1");
        QCOMPARE(outputOf(command), QStringList({"команда: " + word + " Syntax ERROR"}));
        QVERIFY(has(u"a"));
        QVERIFY(openEditor() == nullptr);
    }

    void plainWordsGoToTheLanguage() {
        enter("a = 1");
        QVERIFY(outputOf("DISPLAY MEMORY").contains("СПИСОК ПЕРЕМЕННЫХ *************** "));
        enter("CLEAR MEMORY");
        QVERIFY(!has(u"a"));
    }

    void editOfTheConsoleOpensTheEditor_data() {
        QTest::addColumn<QString>("codePage");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("none") << "" << QByteArray("? \"Ёж\";\n");
        QTest::newRow("UTF8") << "utf8 " << QByteArray("? \"Ёж\";\n");
        QTest::newRow("CP1251") << "CP1251 " << QByteArray("? \"\xA8\xE6\";\n");
        QTest::newRow("CP866") << "cp866 " << QByteArray("? \"\xF0\xA6\";\n");
    }
    void editOfTheConsoleOpensTheEditor() {
        QFETCH(QString, codePage);
        QFETCH(QByteArray, bytes);
        write("text.prg", bytes);
        enter("E" + QString(40, '1') + "DIT COMMAND " + codePage + "text.prg");
        QVERIFY(openEditor() != nullptr);
        QVERIFY(QString::fromStdU16String(openEditor()->text()).startsWith("? \"Ёж\";"));
        QCOMPARE(read("text.prg"), bytes);
    }

    void editOfTheConsoleMakesAMissingFile() {
        enter("E" + QString(40, '1') + "DIT COMMAND \"new one.prg\"");
        QCOMPARE(read("new one.prg"), QByteArray("\n"));
        QVERIFY(openEditor() != nullptr);
    }

    void tryingIsCutDownAndWritesItsTail() {
        const QStringList written = outputOf("tryi");
        QCOMPARE(written.size(), 2);
        QVERIFY(written[1].startsWith(" func: tryExample "));
    }

    // --- what DEBUG, TRACE and STEP say when there is nothing to do

    void debugAndTraceNeedAReadableFile_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("function");
        const QString syntax = "Синтаксическая ошибка.";
        const QString missing = "Файл не найден.";
        QTest::newRow("debug alone") << "DEBUG" << syntax << "commandDebug";
        QTest::newRow("debug of nothing") << "debug nothere.prg" << missing << "commandDebug";
        QTest::newRow("trace alone") << "TRACE" << syntax << "trace";
        QTest::newRow("trace of nothing") << "trace nothere.prg" << missing << "trace";
    }
    void debugAndTraceNeedAReadableFile() {
        QFETCH(QString, command);
        QFETCH(QString, message);
        QFETCH(QString, function);
        const QStringList written = outputOf(command);
        QVERIFY(written.size() >= 2);
        QCOMPARE(written[written.size() - 2], QString("Error! "));
        QVERIFY2(written.last().startsWith(message + " func: " + function + " "),
                 qPrintable(written.last()));
        if (command.startsWith('t', Qt::CaseInsensitive)) {
            QCOMPARE(withoutTail(written.first()), "process init [" + command.mid(5) + "] ");
        }
        QVERIFY(shown().thread() == nullptr);
        QVERIFY(openEditor() == nullptr);
        QVERIFY(!has(u"thisThread"));
        QVERIFY(!has(u"thisProcess"));
        QCOMPARE(inputLine(), prompt);
    }

    void exactWordsAreNotCutDown() {
        write("a.prg", "a = 1;\n");
        enter("DEBU a.prg");
        enter("TRAC a.prg");
        QVERIFY(shown().thread() == nullptr);
        QVERIFY(openEditor() == nullptr);
        QVERIFY(!has(u"a"));
    }

    void stepWithoutDebugSaysNothing() {
        QCOMPARE(outputOf("STEP"), QStringList());
        QCOMPARE(lines(), QStringList({prompt + "STEP", prompt}));
    }

    // --- for a person to look at

    void picture() {
        shown().resize(900, 520);
        enter("# 2+2");
        enter("имя = \"Корво\"");
        enter("D1ISPLAY MEMORY им*");
        enter("c1lear all");
        enter("DEBUG nothere.prg");
        key(Qt::Key_F2);
        key(Qt::Key_Up);
        QVERIFY(saveScreenshot(shown(), "consoleCommands"));
    }
};

QTEST_MAIN(consoleCommands)
#include "consoleCommands.moc"
