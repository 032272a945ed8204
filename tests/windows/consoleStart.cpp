// The console's way to the screen and off it.
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <iostream>

#include "localConsole/console/localConsole.h"
#include "localConsole/console/localConsoleStart.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "screenshot.h"
#include "testFiles.h"

class consoleStart : public QObject {
    Q_OBJECT

private:
    const QStringList greeting_ = {
        "This is the high-level language Korvo interpreter.",
        "Интерпретатор языка Корво.",
        "",
        " Press F1 or input HELP command for brief manual",
        " Press Ctrl+F1, Shift+F1, Alt+F1, or input MANUAL command for full manual",
        " Input QUIT command for exit.",
    };
    const QString prompt_ = "localInterpretatorUTF8> ";

    QTemporaryDir programFolder_;
    QString startedIn_;
    std::streambuf* before_ = nullptr;
    std::unique_ptr<localCoutBuffer> buffer_;
    QPointer<localConsole> console_;

    QStringList start() {
        console_ = localConsoleStart(*buffer_);
        return console_->toPlainText().split('\n');
    }

private slots:
    void initTestCase() {
        QApplication::setFont(QFont("MS Sans Serif", 10));
        startedIn_ = QDir::currentPath();
        localStd::argv0Set(QDir(programFolder_.path()).canonicalPath().toStdString() + "/korvo");
    }

    void init() {
        testFiles::write(QDir(startedIn_).filePath("localConsole.ini"), "{}");
        before_ = std::cout.rdbuf();
        buffer_ = std::make_unique<localCoutBuffer>();
    }

    void cleanup() {
        std::cout.rdbuf(before_);
        if (!console_.isNull()) {
            delete console_->window();
        }
        QDir::setCurrent(startedIn_);
        QDir(programFolder_.path()).removeRecursively();
        QDir().mkpath(programFolder_.path());
    }

    void greets() {
        QCOMPARE(start(), greeting_ + QStringList({"", prompt_}));
        QCOMPARE(std::cout.rdbuf(), buffer_.get());
        QCOMPARE(console_->textCursor().positionInBlock(), int(prompt_.size()));
    }

    void settingsThatCannotBeReadAreToldInTheConsole_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("told");
        QTest::newRow("no file") << QByteArray() << "Файл не найден.";
        QTest::newRow("no JSON") << QByteArray("width = 640") << "Ошибка разбора формата JSON!";
    }
    void settingsThatCannotBeReadAreToldInTheConsole() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, told);
        const QString name = QDir(startedIn_).filePath("localConsole.ini");
        QVERIFY(QFile::remove(name));
        if (!bytes.isEmpty()) {
            testFiles::write(name, bytes);
        }
        QStringList lines = start();
        QVERIFY2(lines.value(6).startsWith(told + " func: localConsoleSettings "),
                 qPrintable(lines.join('|')));
        lines.removeAt(6);
        QCOMPARE(lines, greeting_ + QStringList({"", prompt_}));
    }

    void showsTheConsoleInAWindowOfItsSize() {
        start();
        QWidget* const window = console_->window();
        QVERIFY(window != console_.data());
        QVERIFY(window->isVisible());
        QCOMPARE(window->windowTitle(), QString("console()"));
        QVERIFY(!window->isModal());
        const localConsole alone;
        QCOMPARE(console_->width(), alone.width());
        QVERIFY(QTest::qWaitForWindowActive(window));
        QVERIFY(console_->hasFocus());
        QVERIFY(saveScreenshot(*window, "consoleStart"));
    }

    void staysInAnotherFolder() {
        QDir(programFolder_.path()).mkdir("prgTest");
        QCOMPARE(start(), greeting_ + QStringList({"", prompt_}));
        QCOMPARE(QDir::currentPath(), startedIn_);
    }

    void goesToTheSamplesFromItsOwnFolder() {
        const QString own = QDir(programFolder_.path()).canonicalPath();
        QDir(own).mkdir("prgTest");
        QDir::setCurrent(own);
        QCOMPARE(start(),
                 greeting_ + QStringList({"", "CWD is set to  " + own + "/prgTest", "", prompt_}));
        QCOMPARE(QDir::currentPath(), own + "/prgTest");
    }

    void staysInItsOwnFolderWithoutSamples() {
        const QString own = QDir(programFolder_.path()).canonicalPath();
        QDir::setCurrent(own);
        QCOMPARE(start(), greeting_ + QStringList({"", prompt_}));
        QCOMPARE(QDir::currentPath(), own);
    }

    void windowTakesConsoleAndContextAlong() {
        start();
        const void* const context = console_->context();
        const QPointer<QWidget> window = console_->window();
        QTest::keyClicks(console_, "x = 1");
        QTest::keyClick(console_, Qt::Key_Return);
        QVERIFY(window->close());
        QTRY_VERIFY(window.isNull());
        QVERIFY(console_.isNull());
        QVERIFY(!localContextUTF8::isAlive(context));
    }

    void quitEndsTheEventLoop() {
        start();
        const QPointer<localConsole> console = console_;
        // The last line that the console shows, taken at the time of its going.
        QString last;
        connect(buffer_.get(), &localCoutBuffer::COUT, this,
                [&](const QString& text) { last = text; });
        QTimer::singleShot(0, console_, [console] {
            QTest::keyClicks(console, "exit");
            QTest::keyClick(console, Qt::Key_Return);
        });
        QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QCOMPARE(last, QString("Good bye!"));
        QTRY_VERIFY(console.isNull());
    }

    void closingWhileACommandRunsComesAfterIt() {
        start();
        const QPointer<QWidget> window = console_->window();
        bool closed = true;
        connect(buffer_.get(), &localCoutBuffer::COUT, console_, [&](const QString& text) {
            if (text == "5") {
                closed = window->close();
            }
        });
        QTest::keyClicks(console_, "? 5");
        QTest::keyClick(console_, Qt::Key_Return);
        QVERIFY(!closed);
        QTRY_VERIFY(window.isNull());
    }
};

QTEST_MAIN(consoleStart)
#include "consoleStart.moc"
