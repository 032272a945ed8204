// What the console keeps over restarts: the history of commands and the settings.
#include <QLineEdit>
#include <QScreen>

#include "consoleTest.h"
#include "localConsole/console/localConsoleStart.h"
#include "screenshot.h"

using consoleTest::json;
using consoleTest::prompt;
using consoleTest::read;
using consoleTest::withoutTail;
using consoleTest::write;

namespace {

const QString historyName = "console_history.log";
const QString settingsName = "localConsole.ini";
// Written when a console makes the global context.
const QString slotStoreLine = "localMemoryManager::manager->getReservedCount()= ";

}  // namespace

class consoleHistory : public consoleTest::test {
    Q_OBJECT

private:
    // All lines that Up shows, the oldest first.
    QStringList history() {
        QStringList shownLines;
        for (QString before; key(Qt::Key_Up), inputLine() != before; before = inputLine()) {
            if (inputLine() != prompt) {
                shownLines.prepend(inputLine().mid(prompt.size()));
            }
        }
        return shownLines;
    }

    // Gives the keyboard to another window and waits for what the console writes then.
    void loseFocus() {
        QLineEdit other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QTRY_VERIFY(!shown().hasFocus());
        shown().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown()));
    }

    QSize defaultSize() {
        const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
        return {qRound(desktop.width() * 0.5), qRound(desktop.height() * 0.75)};
    }

private slots:
    // --- the history

    void withoutAFileABoxTellsAndTheFirstCommandMakesOne() {
        start();
        const std::vector<std::string> wanted = {
            "warning [] [Файл console_history.log не найден!]"};
        QCOMPARE(host_.calls, wanted);
        QVERIFY(!QFile::exists(historyName));
        QCOMPARE(history(), QStringList());
        enter("? \"первая\"");
        QCOMPARE(read(historyName), QByteArray("? \"первая\"\n"));
        start();
        QCOMPARE(host_.calls.size(), std::size_t(1));
        QCOMPARE(history(), QStringList({"? \"первая\""}));
    }

    void fileIsReadAndGrows() {
        write(historyName, "? 1\n? \"Ёж\"\n");
        start();
        QVERIFY(host_.calls.empty());
        QCOMPARE(history(), QStringList({"? 1", "? \"Ёж\""}));
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        enter("? 3");
        QCOMPARE(read(historyName), QByteArray("? 1\n? \"Ёж\"\n? 3\n"));
    }

    void commandIsWrittenBeforeItRuns() {
        write(historyName, "");
        start();
        QByteArray meanwhile;
        connect(buffer_.get(), &localCoutBuffer::COUT, &shown(), [&](const QString& line) {
            if (line == "5") {
                meanwhile = read(historyName);
            }
        });
        enter("? 5");
        QCOMPARE(meanwhile, QByteArray("? 5\n"));
    }

    void sameCommandTwiceEntersOnce() {
        write(historyName, "? 1\n");
        start();
        enter("? 1");
        QCOMPARE(read(historyName), QByteArray("? 1\n"));
        enter("? 2");
        enter(" ? 2 ");
        enter("? 1");
        QCOMPARE(read(historyName), QByteArray("? 1\n? 2\n? 1\n"));
        QCOMPARE(history(), QStringList({"? 1", "? 2", "? 1"}));
    }

    void aRepeatedCommandStandsBehindTheLastAgain() {
        write(historyName, "? 1\n? 2\n");
        start();
        key(Qt::Key_Up);
        key(Qt::Key_Return);
        QCOMPARE(output_, QStringList({"2"}));
        QCOMPARE(read(historyName), QByteArray("? 1\n? 2\n"));
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 2");
    }

    void blankLinesAndEndsOfLinesDoNotCount() {
        write(historyName, "\n? 1\r\n\n   \n  ? 2  \n\t\n");
        start();
        QCOMPARE(history(), QStringList({"? 1", "? 2"}));
    }

    void emptyInputDoesNotEnter() {
        write(historyName, "? 1\n");
        start();
        key(Qt::Key_Return);
        enter("   ");
        QCOMPARE(read(historyName), QByteArray("? 1\n"));
        QCOMPARE(history(), QStringList({"? 1"}));
    }

    void blankInputGoesBehindTheLastCommand() {
        write(historyName, "? 1\n? 2\n? 3\n");
        start();
        key(Qt::Key_Up);
        key(Qt::Key_Up);
        while (inputLine() != prompt) {
            key(Qt::Key_Backspace);
        }
        enter("  ");
        QCOMPARE(read(historyName), QByteArray("? 1\n? 2\n? 3\n"));
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + "? 3");
    }

    void oneCharacterAndFaultyCommandsEnter() {
        write(historyName, "");
        start();
        enter("q");
        enter("? nothere");
        QCOMPARE(read(historyName), QByteArray("q\n? nothere\n"));
    }

    void lastLineWithoutAnEndStaysALineOfItsOwn() {
        write(historyName, "? 1\n? 2");
        start();
        QCOMPARE(history(), QStringList({"? 1", "? 2"}));
        key(Qt::Key_Down);
        key(Qt::Key_Down);
        enter("? 3");
        QCOMPARE(read(historyName), QByteArray("? 1\n? 2\n? 3\n"));
        start();
        QCOMPARE(history(), QStringList({"? 1", "? 2", "? 3"}));
    }

    void bytesThatAreNoTextDoNotStopTheConsole() {
        write(historyName, "? 1\n\xFF\xD0\n? 2\n");
        start();
        const QStringList all = history();
        QCOMPARE(all.size(), 3);
        QCOMPARE(all.first(), QString("? 1"));
        QCOMPARE(all.last(), QString("? 2"));
    }

    void fileAmongTheSamplesIsFoundAndWritten() {
        QVERIFY(QDir().mkdir("prgTest"));
        write("prgTest/" + historyName, "? 1\n");
        start();
        QVERIFY(host_.calls.empty());
        enter("? 2");
        QCOMPARE(read("prgTest/" + historyName), QByteArray("? 1\n? 2\n"));
        QVERIFY(!QFile::exists(historyName));
    }

    void historyStaysInItsFolder() {
        write(historyName, "? 1\n");
        start();
        QVERIFY(QDir().mkdir("elsewhere"));
        QVERIFY(QDir::setCurrent("elsewhere"));
        enter("? 2");
        QVERIFY(!QFile::exists(historyName));
        QCOMPARE(read("../" + historyName), QByteArray("? 1\n? 2\n"));
    }

    void historyThatCannotBeWrittenStaysInMemory() {
        start();
        QVERIFY(QDir().mkdir(historyName));
        enter("? 1");
        QCOMPARE(output_, QStringList({"1"}));
        QCOMPARE(history(), QStringList({"? 1"}));
    }

    // --- the settings

    void withoutSettingsTheConsoleTakesItsOwnSize() {
        start();
        QCOMPARE(shown().size(), defaultSize());
        QVERIFY(!shown().windowPlace().has_value());
        QVERIFY(starting_.takeFirst().startsWith(slotStoreLine));
        QCOMPARE(starting_, QStringList({"[]"}));
        takeOutput();
        shown().settingsFailureTell();
        QCOMPARE(withoutTail(takeOutput().value(0)), QString("Файл не найден."));
    }

    void geometryIsSavedOnLossOfFocusAndReadBack() {
        start();
        QVERIFY(!QFile::exists(settingsName));
        shown().move(37, 41);
        shown().resize(613, 307);
        loseFocus();
        QVERIFY(QFile::exists(settingsName));
        const QPoint place = shown().window()->pos();
        const QString text = QString::fromUtf8(read(settingsName));
        shown().resize(200, 100);
        start();
        QCOMPARE(shown().size(), QSize(613, 307));
        QCOMPARE(shown().windowPlace(), std::optional(place));
        QVERIFY(starting_.takeFirst().startsWith(slotStoreLine));
        QVERIFY2(starting_.join('\n').startsWith("[" + text + "]\nwidth: "),
                 qPrintable(starting_.join('|')));
        QCOMPARE(withoutTail(starting_.last()), QString("width: 613 height: 307"));
        QVERIFY(starting_.last().contains(" func: initFromFile "));
    }

    void settingsLieWhereTheProcessWasStarted() {
        start();
        QVERIFY(QDir().mkdir("elsewhere"));
        QVERIFY(QDir::setCurrent("elsewhere"));
        loseFocus();
        QVERIFY(!QFile::exists(settingsName));
        QVERIFY(QFile::exists("../" + settingsName));
    }

    void plainObjectOfSettingsIsRead() {
        write(settingsName,
              json("{'width': 640.4, 'height': 299.6, 'x': 12.5, 'y': -3, 'F5': '? 55'}"));
        start();
        QCOMPARE(shown().size(), QSize(640, 300));
        QCOMPARE(shown().windowPlace(), std::optional(QPoint(13, -3)));
        key(Qt::Key_F5);
        QCOMPARE(output_, QStringList({"55"}));
    }

    void keysOfThePersonOutliveTheSavingOfTheGeometry() {
        write(settingsName, json("{'width': 640, 'F5': '? \\'Ёж\\'', 'other': true}"));
        start();
        shown().resize(500, 320);
        loseFocus();
        start();
        QCOMPARE(shown().size(), QSize(500, 320));
        key(Qt::Key_F5);
        QCOMPARE(output_, QStringList({"Ёж"}));
        QVERIFY(read(settingsName).contains("other"));
    }

    void oneSideAloneLeavesTheOtherAsItIs() {
        write(settingsName, json("{'width': 640}"));
        start();
        QCOMPARE(shown().size(), QSize(640, defaultSize().height()));
        QCOMPARE(withoutTail(starting_.last()),
                 QString("width: 640 height: %1").arg(defaultSize().height()));
        write(settingsName, json("{'height': 300}"));
        start();
        QCOMPARE(shown().size(), QSize(defaultSize().width(), 300));
    }

    void missingCoordinateIsThatOfTheWindow() {
        write(settingsName, json("{'x': 77}"));
        start();
        shown().window()->move(5, 66);
        QCOMPARE(shown().windowPlace(), std::optional(QPoint(77, shown().window()->y())));
        QCOMPARE(shown().size(), defaultSize());
    }

    void brokenSettingsGiveNone_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("status");
        const QString syntax = "Ошибка разбора формата JSON!";
        QTest::newRow("empty") << QByteArray() << syntax;
        QTest::newRow("no JSON") << QByteArray("width = 640") << syntax;
        QTest::newRow("cut off") << json("{'width': 640, 'hei") << syntax;
        QTest::newRow("bytes") << QByteArray("\xFF\xFE{}") << syntax;
    }
    void brokenSettingsGiveNone() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, status);
        write(settingsName, bytes);
        start();
        QCOMPARE(shown().size(), defaultSize());
        QVERIFY(!shown().windowPlace().has_value());
        shown().settingsFailureTell();
        QVERIFY2(output_.value(0).startsWith(status + " func: localConsoleSettings "),
                 qPrintable(output_.join('|')));
        QCOMPARE(shown().keyCommand(1), QString("help"));
        // What a person wrote there is not lost, but for nothing at all.
        takeOutput();
        loseFocus();
        loseFocus();
        if (bytes.isEmpty()) {
            QVERIFY(read(settingsName).contains("width"));
            return;
        }
        QCOMPARE(read(settingsName), bytes);
        QCOMPARE(output_.size(), 1);
        QCOMPARE(withoutTail(output_[0]), QString("Error!!! Не удалось записать файл настроек!"));
    }

    void settingsOfAnotherKindAreIgnored_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("array") << QByteArray("[1, 2]");
        QTest::newRow("number") << QByteArray("7");
        QTest::newRow("texts for numbers")
            << json("{'width': 'wide', 'height': {}, 'x': [1], 'y': true}");
        QTest::newRow("number for a key") << json("{'F1': 5, 'F13': '? 1', '': '? 2'}");
        QTest::newRow("immense") << json(
            "{'width': 99999999999, 'height': -99999999999, 'x': 1000000, 'y': -5000000}");
        QTest::newRow("typed number") << json("{'t':'ЧИСЛО','v':5}");
    }
    void settingsOfAnotherKindAreIgnored() {
        QFETCH(QByteArray, bytes);
        write(settingsName, bytes);
        start();
        QCOMPARE(shown().size(), defaultSize());
        QVERIFY(!shown().windowPlace().has_value());
        QCOMPARE(shown().keyCommand(1), QString("help"));
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
    }

    void settingsThatCannotBeWrittenAreTold() {
        QVERIFY(QDir().mkdir(settingsName));
        start();
        takeOutput();
        loseFocus();
        loseFocus();
        const QStringList told = output_.filter(QRegularExpression(
            "^Error!!! Не удалось записать файл настроек! func: focusOutEvent "));
        // Once is enough.
        QVERIFY2(told.size() == 1, qPrintable(output_.join('|')));
        QCOMPARE(inputLine(), prompt);
    }

    void consoleStartPutsTheWindowInItsPlace() {
        write(historyName, "");
        write(settingsName, json("{'width': 610, 'height': 310, 'x': 55, 'y': 66}"));
        localCoutBuffer buffer;
        std::streambuf* const before = std::cout.rdbuf();
        const QPointer<localConsole> console = localConsoleStart(buffer);
        std::cout.rdbuf(before);
        QCOMPARE(console->window()->pos(), QPoint(55, 66));
        QCOMPARE(console->size(), QSize(610, 310));
        QVERIFY(saveScreenshot(*console->window(), "consoleSettings"));
        delete console->window();
        QVERIFY(console.isNull());
    }
};

QTEST_MAIN(consoleHistory)
#include "consoleHistory.moc"
