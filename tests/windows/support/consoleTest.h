// What the tests of the console share: a folder of their own, a console on the screen with the
// standard output stream led to it, keys, and a host that records.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTextBlock>

#include <clocale>
#include <iostream>
#include <memory>
#include <optional>

#include "localConsole/console/localConsole.h"
#include "localConsole/console/localCoutBuffer.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localMainWindow.h"
#include "localVCL/window/localVclTurn.h"
#include "madeOf.h"
#include "support/recordingHost.h"
#include "testFiles.h"

namespace consoleTest {

inline const QString prompt = "localInterpretatorUTF8> ";

// The program's own host, but boxes and the listing of a folder are recorded and not shown.
class recordingHost : public boxRecordingHost<localVclHost> {
public:
    // The process ends behind this, with its lines in a console that nobody sees.
    void atHalt(std::u16string_view) override { std::cerr << calls.back() << std::endl; }
};

using testFiles::read;
using testFiles::write;

// A text of JSON, in which double quotes are written as single ones: Qt's meta object compiler does
// not get past raw strings.
inline QByteArray json(QByteArray text) {
    return text.replace('\'', '"');
}

// A line of diagnosis without its tail.
inline QString withoutTail(const QString& line) {
    return line.left(line.indexOf(" func: "));
}

// Keys as a keyboard sends them, Russian letters included.
inline void type(QWidget& widget, const QString& text) {
    for (const QChar letter : text) {
        QTest::sendKeyEvent(QTest::Click, &widget, static_cast<Qt::Key>(letter.toUpper().unicode()),
                            QString(letter), Qt::NoModifier, 0);
    }
}

// Each test has an empty folder as the working directory, in which the process counts as started,
// and no console yet. As in the program, nobody is in the language while events are served: a test
// that enters it by itself takes a localTurn::Hold.
class test : public QObject {
    Q_OBJECT

protected:
    QTemporaryDir folder_;
    recordingHost host_;
    std::unique_ptr<localCoutBuffer> buffer_;
    std::unique_ptr<localConsole> console_;
    std::streambuf* before_ = nullptr;
    std::optional<localTurn::Pause> pause_;
    QStringList output_;    // what was written since start(), line by line
    QStringList starting_;  // what the making of the console wrote

    // The console is on the screen and has the keyboard. Ends the one before.
    void start() {
        end();
        buffer_ = std::make_unique<localCoutBuffer>();
        connect(buffer_.get(), &localCoutBuffer::COUT, this,
                [this](const QString& line) { output_.append(line); });
        before_ = std::cout.rdbuf(buffer_.get());
        console_ = std::make_unique<localConsole>();
        connect(buffer_.get(), &localCoutBuffer::COUT, console_.get(), &localConsole::COUT);
        starting_ = std::exchange(output_, {});
        console_->show();
        QVERIFY(QTest::qWaitForWindowActive(console_.get()));
    }

    void end() {
        if (buffer_ == nullptr) {
            return;
        }
        console_.reset();
        // The context of the manual stands below that of the first console, which has just gone.
        qApp->setProperty("localGlobalContext", QVariant());
        // Lines of a thread may still be on their way.
        QCoreApplication::sendPostedEvents();
        std::cout.rdbuf(before_);
        buffer_.reset();
    }

    localConsole& shown() { return *console_; }
    QStringList lines() { return shown().toPlainText().split('\n'); }
    QString inputLine() { return shown().document()->lastBlock().text(); }
    QStringList takeOutput() { return std::exchange(output_, {}); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&shown(), key, modifiers);
    }
    void enter(const QString& text) {
        type(shown(), text);
        key(Qt::Key_Return);
    }
    // Types a command and gives what it wrote.
    QStringList outputOf(const QString& command) {
        takeOutput();
        enter(command);
        return takeOutput();
    }

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        addWhatKorvoIsMadeOf();
        localVclTurnInstall();
        QVERIFY(QDir::setCurrent(folder_.path()));
        localStd::startDirectory();
    }

protected slots:
    void init() {
        pause_.emplace();
        localHost::install(&host_);
        host_.calls.clear();
        host_.reports.clear();
        QDir(folder_.path()).removeRecursively();
        QVERIFY(QDir().mkpath(folder_.path()));
        QVERIFY(QDir::setCurrent(folder_.path()));
        output_.clear();
    }
    void cleanup() {
        end();
        localHost::install(nullptr);
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(widget) != nullptr) {
                delete widget;
            }
        }
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        pause_.reset();
    }
};

}  // namespace consoleTest
