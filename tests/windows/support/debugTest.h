// What the tests of watched programs share: a console that stands, and the steps of a program under
// DEBUG.
#pragma once

#include <QElapsedTimer>
#include <QRegularExpression>

#include "consoleTest.h"
#include "localConsole/debug/MyThread.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localVCL/editor/localVclWidgetEditor.h"

class debugTest : public consoleTest::test {
    Q_OBJECT

protected:
    static constexpr int ended = -1;

    // The editor whose window shows a program under TRACE.
    static localVclWidgetEditor* shownEditor() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const editor = widget->findChild<localVclWidgetEditor*>()) {
                return editor;
            }
        }
        return nullptr;
    }

    // The text of a variable, without the language; empty when there is none.
    QString variable(const char16_t* name) {
        const localTurn::Hold turn;
        return shown().context()->varFind(name) == nullptr
                   ? QString()
                   : QString::fromStdU16String(shown().context()->varToString(name));
    }

    // Where the editor stands when the worker has come to its next stop, or that it has ended.
    int stop() {
        shown().thread()->waitForStop();
        QCoreApplication::processEvents();
        if (shown().thread()->isFinished()) {
            return ended;
        }
        return shown().editor() == nullptr ? 0 : shown().editor()->textCursor().position();
    }
    int debug(const QString& program) {
        consoleTest::write("watched.prg", program.toUtf8());
        takeOutput();
        enter("DEBUG watched.prg");
        return stop();
    }
    int step() {
        enter("STEP");
        return stop();
    }
    // The places of all stops of a program, as the statements that stand there.
    QStringList stops(const QString& program) {
        QStringList places;
        constexpr int most = 100;
        for (int at = debug(program); at != ended && places.size() < most; at = step()) {
            places.append(program.mid(at, program.indexOf('\n', at) - at).trimmed());
        }
        return places;
    }
    // Steps at once wherever the worker stops, for programs of very many stops.
    void runThrough() {
        MyThread* const thread = shown().thread();
        connect(thread, &MyThread::stopped, thread, [thread] { thread->fromConsole(u"STEP"); });
        thread->fromConsole(u"STEP");
        QTRY_VERIFY_WITH_TIMEOUT(thread->isFinished(), 60000);
        QCoreApplication::processEvents();
    }
    // Steps until the worker stands at the first place of the text; false when the program ends
    // before.
    bool stepTo(const QString& program, const QString& text) {
        const auto place = int(program.indexOf(text));
        for (int at = stop(); at != place; at = step()) {
            if (at == ended) {
                return false;
            }
        }
        return true;
    }
    // Defines a function of a count that writes so many lines, in which the worker does not stop.
    void defineLines() {
        consoleTest::write("lines.prg",
                           "FUNCTION lines(n)\nFOR i = 1 TO n DO\n? \"worker\";\nENDDO;\n"
                           "RETURN n;\nENDFUNCTION;\n");
        enter("DO lines.prg");
    }
    // Lets the worker go to its next stop while this thread takes no events. False when it does not
    // come to one.
    bool goOnUnheard() {
        QAtomicInt stopped = 0;
        const auto connection = connect(
            shown().thread(), &MyThread::stopped, shown().thread(), [&] { stopped = 1; },
            Qt::DirectConnection);
        shown().thread()->fromConsole(u"STEP");
        for (int i = 0; i < 4000 && stopped == 0; ++i) {
            QThread::msleep(5);
        }
        disconnect(connection);
        return stopped == 1;
    }
    // Waits, without taking events, until the worker is in the language.
    static bool workerHasTheTurn() {
        constexpr int longest = 20000;  // milliseconds
        QElapsedTimer waited;
        waited.start();
        while (localTurn::Attempt()) {
            if (waited.elapsed() > longest) {
                return false;
            }
            QThread::yieldCurrentThread();
        }
        return true;
    }
    bool isOutput(const QString& start) {
        return !output_.filter(QRegularExpression("^" + QRegularExpression::escape(start)))
                    .isEmpty();
    }

protected slots:
    void init() {
        test::init();
        consoleTest::write("console_history.log", "");
        start();
    }
};
