// The console's files after its process is killed: the history holds whole lines in the order in
// which they were typed, the settings are the old or the new ones, and the next console goes on
// from there.
//
// The process killed is this program, started with an argument that says what it does: see main().
#include <QClipboard>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <csignal>
#include <map>
#include <optional>
#include <thread>

#include <sys/resource.h>

#include "childProcess.h"
#include "consoleTest.h"
#include "localConsole/console/localConsoleHistory.h"
#include "localConsole/console/localConsoleSettings.h"
#include "localConsole/console/qMain.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::read;
using consoleTest::write;
using std::chrono::duration_cast;
using std::chrono::microseconds;
using std::chrono::steady_clock;

namespace {

const QString historyName = "console_history.log";
const QString settingsName = "localConsole.ini";

// How the child is started, and what it tells.
const QString typeArgument = "--type";  // number of the first command, count of commands or 0
const QString enterArgument = "--enter";
constexpr char ready = 'r';
constexpr char entered = 'l';
constexpr char saved = 's';
constexpr char done = 'e';

// The system cuts a write, if at all, where a page of the file ends.
constexpr qsizetype page = 4096;

// The command typed as the given one, counted from 0. Some are longer than the buffers on the way,
// which hold 4 or 16 kilobytes.
QString commandAt(int number) {
    if (number % 8 == 5) {
        const int times = number % 16 == 5 ? 2000 : 200;
        return QString("длинная = \"%1\"")
            .arg(QString("Ёж и %1, ").arg(number).repeated(times) + ".");
    }
    return QString("имя = \"Корво %1\"").arg(number);
}

// A line of a megabyte.
QString hugeLineAt(int number) {
    static const QString rest = QString("0123456789abcdef").repeated(1 << 16);
    return QString::number(number) + rest;
}

template <typename Line>
QByteArray fileOf(Line line, int count) {
    QByteArray bytes;
    for (int number = 0; number < count; ++number) {
        bytes += line(number).toUtf8() + '\n';
    }
    return bytes;
}

// Behind every third command the person goes to another window for a moment, which saves the
// settings.
bool isSavedBehind(int number) {
    return number % 3 == 2;
}

// The window's place while the settings are saved behind the given command.
QPoint placeAt(int number) {
    return {number % 500, 2 * (number % 500)};
}

// The place that the given saving of a person saves who began with the command `first`. Counted
// from 1.
QPoint placeOfSaving(int first, qsizetype saving) {
    int number = first;
    while (!isSavedBehind(number)) {
        ++number;
    }
    return placeAt(number + 3 * (static_cast<int>(saving) - 1));
}

// --- what the child does

[[noreturn]] void waitForTheEnd() {
    childProcess::tell(done);
    for (;;) {
        pause();
    }
}

void must(bool happened, const char* what) {
    if (!happened) {
        std::cerr << "the person at the console: " << what << std::endl;
        std::_Exit(EXIT_FAILURE);
    }
}

// A person at the console of the real program: types commands, short ones by keys and long ones by
// the clipboard.
[[noreturn]] void typeCommands(localConsole& console, int first, int count) {
    QLineEdit other;
    childProcess::tell(ready);
    for (int number = first; count == 0 || number < first + count; ++number) {
        const QString command = commandAt(number);
        if (command.size() < 100) {
            consoleTest::type(console, command);
        } else {
            QApplication::clipboard()->setText(command);
            console.paste();
        }
        QTest::keyClick(&console, Qt::Key_Return);
        childProcess::tell(entered);
        if (isSavedBehind(number)) {
            console.window()->move(placeAt(number));
            other.show();
            other.activateWindow();
            must(QTest::qWaitFor([&] { return !console.hasFocus(); }),
                 "the other window is not active");
            childProcess::tell(saved);
            console.window()->activateWindow();
            must(QTest::qWaitFor([&] { return console.hasFocus(); }), "the console is not active");
            other.hide();
        }
    }
    waitForTheEnd();
}

int firstCommand = 0;
int countOfCommands = 0;

void typeWhenShown() {
    // Only the loop in which the program waits for a person counts, not events taken while it
    // starts.
    auto* const console = qobject_cast<localConsole*>(QApplication::focusWidget());
    if (console == nullptr || QThread::currentThread()->loopLevel() == 0) {
        QTimer::singleShot(1, qApp, typeWhenShown);
        return;
    }
    typeCommands(*console, firstCommand, countOfCommands);
}

int runKorvo(char* program[]) {
    consoleTest::recordingHost host;
    localHost::install(&host);
    addWhatKorvoIsMadeOf();
    qAddPreRoutine([] { QTimer::singleShot(0, qApp, typeWhenShown); });
    return qMain(1, program);
}

// Lines that nobody can type, without a console.
[[noreturn]] void enterHugeLines() {
    consoleTest::recordingHost host;
    localHost::install(&host);
    localConsoleHistory history;
    hugeLineAt(0);
    childProcess::tell(ready);
    for (int number = 0;; ++number) {
        history.enter(hugeLineAt(number));
        childProcess::tell(entered);
    }
}

// --- what the tests look at

using Files = std::map<QString, QByteArray>;

Files filesHere() {
    Files files;
    for (const QString& name : QDir().entryList(QDir::Files | QDir::Hidden)) {
        files[name] = read(name);
    }
    return files;
}

// How many lines of the file are there, all being those of the wanted text. A piece of the next
// line may follow, ending with a page. Nothing when the file holds anything else.
std::optional<int> wholeLines(const QByteArray& file, const QByteArray& wanted) {
    if (!wanted.startsWith(file)) {
        return std::nullopt;
    }
    if (!file.isEmpty() && !file.endsWith('\n') && file.size() % page != 0) {
        return std::nullopt;
    }
    return static_cast<int>(file.count('\n'));
}

QString middleOf(const QByteArray& text) {
    return text.size() <= 200 ? text : text.left(100) + " ... " + text.right(100);
}

// No file of this process grows beyond the limit while this lives: a disk that is full at that
// place.
class fullDisk {
public:
    explicit fullDisk(qsizetype limit) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit full = before_;
        full.rlim_cur = static_cast<rlim_t>(limit);
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~fullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    fullDisk(const fullDisk&) = delete;
    fullDisk& operator=(const fullDisk&) = delete;

private:
    void (*signalBefore_)(int);
    rlimit before_{};
};

}  // namespace

class consoleKill : public consoleTest::test {
    Q_OBJECT

private:
    void loseFocus() {
        QLineEdit other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!shown().hasFocus());
        shown().activateWindow();
        QTRY_VERIFY(shown().hasFocus());
    }

    // The settings as the language reads them: where the window stood. Nothing unless all four
    // numbers are there, and the place is one that the person chose.
    static std::optional<QPoint> savedPlace() {
        const outputCapture lines;
        const localTurn::Hold turn;
        const localContextUTF8 context;
        const localConsoleSettings settings;
        const auto x = settings.number(u"x");
        const auto y = settings.number(u"y");
        if (!x || !y || !settings.number(u"width") || !settings.number(u"height") || *y != 2 * *x) {
            return std::nullopt;
        }
        return QPoint(*x, *y);
    }

    // A console on what was left behind knows all lines, and history and settings go on as ever. No
    // other file stays.
    void goOn(const QByteArray& whole) {
        start();
        const QStringList lines = localConsoleHistory().lines();
        QCOMPARE(lines, QString::fromUtf8(whole).split('\n', Qt::SkipEmptyParts));
        enter("? 6*7");
        QCOMPARE(output_.last(), QString("42"));
        const QByteArray history = read(historyName);
        QVERIFY2(history == whole + "? 6*7\n", qPrintable(middleOf(history)));
        shown().move(77, 154);
        loseFocus();
        QCOMPARE(savedPlace(), std::optional(QPoint(77, 154)));
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden),
                 QStringList({historyName, settingsName}));
    }

    static QRandomGenerator seeded() {
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo("seed %u", seed);
        return QRandomGenerator(seed);
    }

    static void sleepUpTo(QRandomGenerator& random, microseconds most) {
        std::this_thread::sleep_for(microseconds(
            random.bounded(static_cast<int>(std::max(most, microseconds(1)).count()))));
    }

    // Returns at any moment of the child's work on the next of its steps, a few steps after its
    // start.
    static void workForAWhile(childProcess& child, QRandomGenerator& random, int mostSteps) {
        const int steps = random.bounded(1, mostSteps + 1);
        const auto start = steady_clock::now();
        QVERIFY(child.waitFor(1 + steps));
        sleepUpTo(random, duration_cast<microseconds>(steady_clock::now() - start) / steps);
    }

private slots:
    void killedAtRandomMoments() {
        constexpr int rounds = 60;
        QRandomGenerator random = seeded();
        microseconds starting{1};
        int known = 0;  // lines in the file
        std::optional<QPoint> place;
        QSet<QString> names{historyName, settingsName};
        write(historyName, "");
        for (int round = 0; round < rounds; ++round) {
            const auto start = steady_clock::now();
            childProcess child({typeArgument, QString::number(known), "0"});
            if (round % 4 == 3) {
                sleepUpTo(random, starting);
            } else {
                QVERIFY(child.waitFor(1));
                starting = duration_cast<microseconds>(steady_clock::now() - start);
                workForAWhile(child, random, 8);
                if (QTest::currentTestFailed()) {
                    return;
                }
            }
            QCOMPARE(child.kill(), SIGKILL);

            const int told = known + static_cast<int>(child.told().count(entered));
            const QByteArray history = read(historyName);
            const std::optional<int> lines = wholeLines(history, fileOf(commandAt, told + 1));
            QVERIFY2(lines.has_value(), qPrintable(middleOf(history)));
            QVERIFY2(*lines >= told,
                     qPrintable(QString("%1 lines, entered %2").arg(*lines).arg(told)));

            const qsizetype savings = child.told().count(saved);
            const std::optional<QPoint> last = savings > 0 ? placeOfSaving(known, savings) : place;
            const std::optional<QPoint> next = placeOfSaving(known, savings + 1);
            place = savedPlace();
            QCOMPARE(place.has_value(), QFile::exists(settingsName));
            QVERIFY2(place == last || place == next, read(settingsName));

            for (const auto& [name, bytes] : filesHere()) {
                names.insert(name);
            }
            QVERIFY2(names.size() <= 4, qPrintable(names.values().join(' ')));
            known = *lines;
        }
        QVERIFY(known > 0);
        QVERIFY(place.has_value());
        goOn(fileOf(commandAt, known));
    }

    // What a killed process leaves is what its last system call has left. So each moment at which
    // the files can look different is seen, if each call is looked behind.
    void killedBehindEachSystemCall() {
        constexpr int commands = 9;
        const QByteArray wanted = fileOf(commandAt, commands);
        childProcess child({typeArgument, "0", QString::number(commands)},
                           childProcess::Run::stopAtSystemCalls);
        std::vector<Files> moments{{}};
        while (!child.told().contains(done)) {
            QVERIFY(child.nextSystemCall());
            if (Files files = filesHere(); files != moments.back()) {
                moments.push_back(std::move(files));
            }
        }
        QCOMPARE(child.kill(), SIGKILL);
        QVERIFY(moments.size() >= commands + 3);
        QCOMPARE(moments.back()[historyName], wanted);

        QSet<QString> names{historyName, settingsName};
        QByteArray historyBefore;
        int placeBefore = -1;
        for (const Files& files : moments) {
            QDir(folder_.path()).removeRecursively();
            QVERIFY(QDir().mkpath(folder_.path()));
            QVERIFY(QDir::setCurrent(folder_.path()));
            for (const auto& [name, bytes] : files) {
                write(name, bytes);
                names.insert(name);
            }
            QVERIFY2(names.size() <= 4, qPrintable(names.values().join(' ')));
            const QByteArray history =
                files.contains(historyName) ? files.at(historyName) : QByteArray();
            QVERIFY2(wanted.startsWith(history), qPrintable(middleOf(history)));
            QVERIFY2(history.startsWith(historyBefore), qPrintable(middleOf(history)));
            QVERIFY2(history.isEmpty() || history.endsWith('\n'), qPrintable(middleOf(history)));
            historyBefore = history;
            const std::optional<QPoint> place = savedPlace();
            QCOMPARE(place.has_value(), files.contains(settingsName));
            const int x = place ? place->x() : -1;
            QVERIFY2(x >= placeBefore, qPrintable(QString("%1 behind %2").arg(x).arg(placeBefore)));
            placeBefore = x;
            goOn(history);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
    }

    // The system may end the write of a killed process between two pages of the file.
    void killedWithinAWrite() {
        constexpr int rounds = 25;
        QRandomGenerator random = seeded();
        for (int round = 0; round < rounds; ++round) {
            write(historyName, "");
            childProcess child({enterArgument});
            QVERIFY(child.waitFor(1));
            workForAWhile(child, random, 4);
            if (QTest::currentTestFailed()) {
                return;
            }
            QCOMPARE(child.kill(), SIGKILL);
            const int told = static_cast<int>(child.told().count(entered));
            const std::optional<int> lines =
                wholeLines(read(historyName), fileOf(hugeLineAt, told + 1));
            QVERIFY(lines.has_value());
            QVERIFY2(*lines >= told,
                     qPrintable(QString("%1 lines, entered %2").arg(*lines).arg(told)));

            localConsoleHistory history;
            QCOMPARE(history.lines().size(), *lines);
            history.enter("? 1");
            QVERIFY(read(historyName) == fileOf(hugeLineAt, *lines) + "? 1\n");
        }
    }

    void pieceOfALineIsAbsent_data() {
        QTest::addColumn<QByteArray>("whole");
        QTest::addColumn<QByteArray>("next");
        const QByteArray line(7000, 'x');
        QTest::newRow("alone") << QByteArray() << line;
        QTest::newRow("behind a line") << QByteArray("? 1\n") << line;
        QTest::newRow("from page to page") << QByteArray(page - 1, 'y') + '\n' << line;
        QTest::newRow("many pages") << fileOf(commandAt, 20) << QByteArray(100 * page, 'x');
        QTest::newRow("within a letter") << QByteArray("? 1\n?") + '\n'
                                         << QByteArray("Ё").repeated(5000);
        QTest::newRow("all but the end") << QByteArray("? 1\n") << QByteArray(page - 4, 'x');
    }
    void pieceOfALineIsAbsent() {
        QFETCH(QByteArray, whole);
        QFETCH(QByteArray, next);
        const QByteArray all = whole + next;
        const QByteArray file = all.left(all.size() / page * page);
        QVERIFY(file.size() > whole.size());
        write(historyName, file);
        write(historyName + ".part", next + '\n');
        goOn(whole);
    }

    void lineWithoutAnEndIsNoPieceWithoutTheMark_data() {
        QTest::addColumn<QByteArray>("mark");
        QTest::newRow("no mark") << QByteArray();
        QTest::newRow("the mark of another line") << QByteArray("? 2\n");
        QTest::newRow("the mark of that line, which is whole") << QByteArray(page - 4, 'x');
    }
    // Also where it ends with a page.
    void lineWithoutAnEndIsNoPieceWithoutTheMark() {
        QFETCH(QByteArray, mark);
        const QByteArray file = "? 1\n" + QByteArray(page - 4, 'x');
        write(historyName, file);
        if (!mark.isEmpty()) {
            write(historyName + ".part", mark);
        }
        goOn(file + '\n');
    }

    void lineForWhichTheDiskHasNoRoomIsAbsent_data() {
        QTest::addColumn<int>("room");
        for (const int room : {0, 1, 100, 4096, 10009}) {
            QTest::addRow("%d", room) << room;
        }
    }
    void lineForWhichTheDiskHasNoRoomIsAbsent() {
        QFETCH(int, room);
        const QByteArray whole = fileOf(commandAt, 5);
        const QString command = "х = \"" + QString(10002, 'x') + "\"";
        QCOMPARE(command.toUtf8().size(), 10009);
        write(historyName, whole);
        start();
        {
            const fullDisk full(whole.size() + room);
            QApplication::clipboard()->setText(command);
            shown().paste();
            key(Qt::Key_Return);
        }
        QCOMPARE(read(historyName), whole);
        key(Qt::Key_Up);
        QCOMPARE(inputLine(), prompt + command);
        goOn(whole);
    }

    void settingsForWhichTheDiskHasNoRoomStay_data() {
        QTest::addColumn<int>("room");
        QTest::newRow("none") << 0;
        QTest::newRow("some") << 20;
    }
    void settingsForWhichTheDiskHasNoRoomStay() {
        QFETCH(int, room);
        write(historyName, "");
        start();
        shown().move(30, 60);
        loseFocus();
        const Files before = filesHere();
        QVERIFY(before.at(settingsName).size() > room);
        shown().move(40, 80);
        takeOutput();
        {
            const fullDisk full(room);
            loseFocus();
        }
        QVERIFY2(!output_.filter("Error!!! Не удалось записать файл настроек!").isEmpty(),
                 qPrintable(output_.join('|')));
        QVERIFY(filesHere() == before);
        QCOMPARE(savedPlace(), std::optional(QPoint(30, 60)));
        goOn("");
    }

    void settingsStayBehindTheirLinkAndKeepTheirRights() {
        write(historyName, "");
        QVERIFY(QDir().mkdir("mine"));
        write("mine/settings", "{}");
        const QFile::Permissions rights =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QVERIFY(QFile::setPermissions("mine/settings", rights));
        QVERIFY(QFile::link("mine/settings", settingsName));
        goOn("");
        QCOMPARE(QFile::symLinkTarget(settingsName), QFileInfo("mine/settings").absoluteFilePath());
        QCOMPARE(QFile::permissions("mine/settings"), rights);
        QCOMPARE(QDir("mine").entryList(QDir::Files | QDir::Hidden), QStringList("settings"));
    }
};

int main(int argc, char* argv[]) {
    const QStringList arguments(argv + 1, argv + argc);
    if (arguments.value(0) == typeArgument) {
        firstCommand = arguments.value(1).toInt();
        countOfCommands = arguments.value(2).toInt();
        return runKorvo(argv);
    }
    if (arguments.value(0) == enterArgument) {
        enterHugeLines();
    }
    QApplication application(argc, argv);
    consoleKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "consoleKill.moc"
