// Programs that are watched: DEBUG, which waits for STEP before each statement, and TRACE.
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include "consoleTest.h"
#include "localConsole/debug/MyThread.h"
#include "localConsole/debug/localProcess.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "screenshot.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::withoutTail;
using consoleTest::write;

namespace {

constexpr int ended = -1;

// The editor whose window shows a program under TRACE.
localVclWidgetEditor* shownEditor() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (auto* const editor = widget->findChild<localVclWidgetEditor*>()) {
            return editor;
        }
    }
    return nullptr;
}

}  // namespace

class debugging : public consoleTest::test {
    Q_OBJECT

private:
    // The text of a variable, without the language; empty when there is none.
    QString variable(const char16_t* name) {
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
        write("watched.prg", program.toUtf8());
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
    bool isOutput(const QString& start) {
        return !output_.filter(QRegularExpression("^" + QRegularExpression::escape(start))).isEmpty();
    }

private slots:
    void init() {
        test::init();
        write("console_history.log", "");
        start();
    }

    // --- stops

    void stopsBeforeEachStatementAndTheEditorFollows() {
        const QString program = "a = 1;\n? \"вывод\";\n  b = a+1; // end\n";
        QCOMPARE(debug(program), 0);
        QVERIFY(shown().editor() != nullptr);
        QCOMPARE(QString::fromStdU16String(shown().editor()->text()).trimmed(), program.trimmed());
        QCOMPARE(variable(u"a"), QString());
        QCOMPARE(step(), program.indexOf("?"));
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY(output_.isEmpty());
        QCOMPARE(step(), program.indexOf("b = "));
        QCOMPARE(output_, QStringList({"вывод"}));
        QCOMPARE(variable(u"b"), QString());
        // The RETURN that every program gets stands where its last statement does.
        QCOMPARE(step(), program.indexOf("b = "));
        QCOMPARE(variable(u"b"), QString("2"));
        QVERIFY(!shown().thread()->isFinished());
        QCOMPARE(step(), ended);
        QCOMPARE(output_, QStringList({"вывод"}));
    }

    void startLeavesTheKeyboardToTheConsole() {
        debug("a = 1;\n");
        QVERIFY(QTest::qWaitForWindowActive(&shown()));
        QVERIFY(shown().hasFocus());
        QVERIFY(!shown().isBusy());
        QCOMPARE(lines(), QStringList({prompt + "DEBUG watched.prg", prompt}));
        const QSize desktop = QGuiApplication::primaryScreen()->availableSize();
        QCOMPARE(shown().editor()->window()->pos(), QPoint(desktop.width() / 4, 10));
        QVERIFY(shown().editor()->isVisible());
        QVERIFY(shown().editor()->window()->windowTitle().contains("watched.prg"));
    }

    void plainBlocksPass() {
        QCOMPARE(stops("i = 0;\n"
                       "WHILE i<2 DO\n"
                       "    i = i+1;\n"
                       "ENDDO;\n"
                       "f(i);\n"
                       "FUNCTION f(n)\n"
                       "    RETURN n;\n"
                       "ENDFUNCTION;\n"),
                 QStringList({"i = 0;", "WHILE i<2 DO", "i = i+1;", "i = i+1;", "f(i);", "RETURN n;",
                              "FUNCTION f(n)"}));
    }

    void conditionalBranchStopsAndElseDoesNot() {
        const QString program = "IF x=1 THEN\n"
                                "    ? \"one\";\n"
                                "ELSEIF x=2 THEN\n"
                                "    ? \"two\";\n"
                                "ELSE\n"
                                "    ? \"other\";\n"
                                "ENDIF;\n";
        const QString head = "IF x=1 THEN";
        enter("x = 1");
        QCOMPARE(stops(program), QStringList({head, head, "? \"one\";", head}));
        enter("x = 2");
        QCOMPARE(stops(program), QStringList({head, head, "? \"two\";", head}));
        enter("x = 3");
        QCOMPARE(stops(program), QStringList({head, "? \"other\";", head}));
    }

    void forShowsItsRewrittenNodes() {
        const QString head = "FOR i = 1 TO 2 DO";
        QCOMPARE(stops("FOR i = 1 TO 2 DO\n"
                       "    a = i;\n"
                       "ENDDO;\n"
                       "b = i;\n"),
                 // The assignment, the WHILE, and the step behind each pass.
                 QStringList({head, head, "a = i;", head, "a = i;", head, "b = i;", "b = i;"}));
        QCOMPARE(variable(u"b"), QString("3"));
    }

    void emptyProgramStopsAtItsReturnOnly() {
        QCOMPARE(debug(""), 0);
        QCOMPARE(step(), ended);
        QVERIFY(output_.isEmpty());
    }

    void placesCountWideLettersAndEndsOfLines() {
        QCOMPARE(debug("имя = 1;\r\n\r\nдругое = 2;\r\n"), 0);
        step();
        QCOMPARE(shown().editor()->textCursor().block().text(), QString("другое = 2;"));
        QCOMPARE(shown().editor()->textCursor().positionInBlock(), 0);
    }

    void geometryIsSavedWhenTheWorkerHasStopped() {
        // The wait cursor of a DO keeps the worker at work until this thread takes events again.
        write("slow.prg", "n = 0;\n");
        debug("DO \"slow.prg\";\nb = n;\n");
        QTRY_VERIFY(QFile::exists("localConsole.ini"));
        QVERIFY(QFile::remove("localConsole.ini"));
        shown().thread()->fromConsole(u"STEP");
        QVERIFY(shown().thread()->isWorking());
        QFocusEvent lost(QEvent::FocusOut);
        QCoreApplication::sendEvent(&shown(), &lost);
        // The list of settings takes slots, which are the worker's now.
        QVERIFY(!QFile::exists("localConsole.ini"));
        stop();
        QTRY_VERIFY(QFile::exists("localConsole.ini"));
        QVERIFY(!shown().thread()->isFinished());
    }

    // --- commands at a stop

    void contextIsLiveAtAStop() {
        debug("x = 5;\ny = x*2;\n? y;\n");
        step();
        QCOMPARE(outputOf("? x"), QStringList({"5"}));
        const QStringList listing = outputOf("DISPLAY MEMORY");
        QCOMPARE(listing.filter("var [X]").size(), 1);
        QCOMPARE(listing.filter("var [THISTHREAD]").size(), 1);
        QCOMPARE(listing.filter("var [THISPROCESS]").size(), 1);
        QVERIFY(listing.filter("var [Y]").isEmpty());
        enter("x = 21");
        step();
        takeOutput();
        step();
        QCOMPARE(output_, QStringList({"42"}));
    }

    void anotherProgramMayRunAtAStop() {
        write("other.prg", "fromOther = 7;\n? \"other\";\n");
        debug("a = 1;\n? fromOther;\n");
        QCOMPARE(outputOf("DO \"other.prg\""), QStringList({"other"}));
        step();
        takeOutput();
        step();
        QCOMPARE(output_, QStringList({"7"}));
    }

    void outputOfTheWorkerStandsAboveTheHalfTypedLine() {
        debug("? \"from afar\";\n");
        enter("STEP");
        consoleTest::type(shown(), "half");
        shown().thread()->waitForStop();
        QTRY_COMPARE(lines(), QStringList({prompt + "DEBUG watched.prg", prompt + "STEP", "from afar",
                                           prompt + "half"}));
    }

    void commandWaitsForTheWorkerToStop() {
        // The loop runs within one statement: the command below must see all of its work.
        write("slow.prg", "n = 0;\nWHILE n<3000 DO\nn = n+1;\nENDDO;\n");
        debug("n = 0;\nDO \"slow.prg\";\nb = n;\n");
        step();
        enter("STEP");
        QCOMPARE(outputOf("? n").last(), QString("3000"));
    }

    void functionsOfADebuggedProgramWorkInTheConsole() {
        const QString program = "FUNCTION twice(n)\nRETURN n*2;\nENDFUNCTION;\na = twice(4);\n";
        QCOMPARE(debug(program), program.indexOf("a = "));
        // Called while the program stands: the console itself does not stop.
        QCOMPARE(outputOf("? twice(5)"), QStringList({"10"}));
        runThrough();
        QCOMPARE(variable(u"a"), QString("8"));
        QCOMPARE(outputOf("? twice(21)"), QStringList({"42"}));
        // And when another program has taken the place of the first.
        debug("b = twice(1);\n");
        QCOMPARE(outputOf("? twice(6)"), QStringList({"12"}));
        QCOMPARE(stop(), 0);
    }

    // --- the end

    void stepBehindTheEndSaysNothing() {
        debug("a = 1;\n");
        step();
        QCOMPARE(step(), ended);
        QCOMPARE(outputOf("STEP"), QStringList());
        QCOMPARE(outputOf("STEP"), QStringList());
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(outputOf("? a"), QStringList({"1"}));
        QVERIFY(shown().editor() != nullptr);
    }

    void stepWithoutDebugSaysNothing() {
        QCOMPARE(outputOf("STEP"), QStringList());
        QVERIFY(shown().thread() == nullptr);
    }

    void secondDebugEndsTheFirstWhereItStands() {
        debug("a = 1;\nb = 2;\n");
        step();
        const QPointer<localVclWidgetEditor> first = shown().editor();
        const QString second = "c = 3;\nd = 4;\n";
        QCOMPARE(debug(second), 0);
        QVERIFY(shown().editor() != first.data());
        QVERIFY(!first.isNull());
        QCOMPARE(step(), second.indexOf("d"));
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(variable(u"c"), QString("3"));
        runThrough();
        QCOMPARE(variable(u"d"), QString("4"));
        QVERIFY2(output_.isEmpty(), qPrintable(output_.join('|')));
    }

    void secondDebugWhileNewsOfTheFirstAreOnTheirWay() {
        write("watched.prg", "a = 1;\nb = 2;\n");
        enter("DEBUG watched.prg");
        const MyThread* const first = shown().thread();
        // The worker comes to its next stop while this thread takes no events.
        QAtomicInt stopped = 0;
        connect(first, &MyThread::stopped, first, [&] { stopped = 1; }, Qt::DirectConnection);
        shown().thread()->fromConsole(u"STEP");
        for (int i = 0; i < 2000 && stopped == 0; ++i) {
            QThread::msleep(5);
        }
        QCOMPARE(int(stopped), 1);
        shown().cmdExec("DEBUG watched.prg");
        QCOMPARE(stop(), 0);
    }

    void secondDebugOfABadFileKeepsTheFirst() {
        debug("a = 1;\nb = 2;\n");
        QVERIFY(outputOf("DEBUG nothere.prg").contains("Error! "));
        step();
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY(!shown().thread()->isFinished());
    }

    void closedEditorDoesNotStopTheProgram() {
        debug("a = 1;\nb = 2;\nc = 3;\n");
        const QPointer<localVclWidgetEditor> editor = shown().editor();
        QVERIFY(editor->window()->close());
        QTRY_VERIFY(editor.isNull());
        QVERIFY(shown().editor() == nullptr);
        step();
        step();
        QCOMPARE(variable(u"b"), QString("2"));
        runThrough();
        QCOMPARE(variable(u"c"), QString("3"));
    }

    void editedTextOfTheEditorStaysOpenAtAStop() {
        debug("a = 1;\nb = 2;\n");
        consoleTest::type(*shown().editor(), "// ");
        step();
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY(shown().editor()->document()->isModified());
        shown().editor()->document()->setModified(false);
    }

    void consoleGoesAtAStop() {
        debug("a = 1;\n? \"never\";\n");
        step();
        const QPointer<localVclWidgetEditor> editor = shown().editor();
        const void* const context = shown().context();
        end();
        QVERIFY(!localContextUTF8::isAlive(context));
        QTRY_VERIFY(editor.isNull());
        QVERIFY(!output_.contains("never"));
    }

    void quitAtAStopCloses() {
        debug("a = 1;\n? \"never\";\n");
        enter("QUIT");
        QVERIFY(!shown().isVisible());
        QCOMPARE(output_.last(), QString("Good bye!"));
        end();
        QVERIFY(!output_.contains("never"));
    }

    void consoleGoesWhileTheProgramRuns() {
        write("endless.prg", "i = 0;\nWHILE i<2 DO\nk = 1;\nENDDO;\n");
        enter("DEBUG endless.prg");
        MyThread* const thread = shown().thread();
        int stops = 0;
        connect(thread, &MyThread::stopped, thread, [thread, &stops] {
            ++stops;
            thread->fromConsole(u"STEP");
        });
        thread->fromConsole(u"STEP");
        QTRY_VERIFY(stops > 20);
        end();
        QVERIFY(console_ == nullptr);
    }

    // --- programs that go wrong or ask

    void programThatFailsTells() {
        debug("a = 1;\n? nothere;\nb = 2;\n");
        step();
        QCOMPARE(step(), ended);
        QVERIFY2(output_.last().startsWith("Неверный атрибут. func: call file: MyThread.cpp line: "),
                 qPrintable(output_.join('|')));
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(outputOf("? a"), QStringList({"1"}));
    }

    void programThatDoesNotCompileTells_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("message");
        QTest::newRow("no end of an IF") << "IF 1 THEN\na = 1;\n" << "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\"";
        QTest::newRow("end of a loop alone") << "a = 1;\nENDDO;\n" << "";
        QTest::newRow("no semicolon") << "a = 1\nb = 2;\n" << "Синтаксическая ошибка. Ожидается \";\"";
    }
    void programThatDoesNotCompileTells() {
        QFETCH(QString, program);
        QFETCH(QString, message);
        QCOMPARE(debug(program), ended);
        QVERIFY2(!output_.isEmpty() && output_.last().startsWith(message) &&
                     output_.last().contains(" func: call "),
                 qPrintable(output_.join('|')));
        QCOMPARE(variable(u"a"), QString());
        QCOMPARE(variable(u"thisProcess"), QString());
        QCOMPARE(outputOf("STEP"), QStringList());
    }

    void deepRecursionOnTheWorkerFails() {
        write("deep.prg", "FUNCTION deep(n)\ndepth = n;\nRETURN deep(n+1)+1;\nENDFUNCTION;\ndepth = 0;\n");
        const QString program = "DO \"deep.prg\" ;\nx = deep(1);\nb = 1;\n";
        QCOMPARE(debug(program), 0);
        QCOMPARE(step(), program.indexOf("x = "));
        QCOMPARE(step(), ended);
        QVERIFY2(isOutput("Слишком глубокая вложенность или рекурсия!"), qPrintable(output_.last()));
        QVERIFY(output_.last().contains(" func: call "));
        QVERIFY(variable(u"depth").toInt() > 20);
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
    }

    void deepRecursionWithStopsFails() {
        debug("FUNCTION deep(n)\nRETURN deep(n+1)+1;\nENDFUNCTION;\nx = deep(1);\nb = 1;\n");
        runThrough();
        QVERIFY2(isOutput("Слишком глубокая вложенность или рекурсия!"), qPrintable(output_.last()));
        QVERIFY(output_.last().contains(" func: call "));
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
    }

    void boxOfADebuggedProgramIsAnswered() {
        localVclHost real;
        localHost::install(&real);
        debug("MESSAGEBOX(\"Готово?\");\na = 1;\n");
        QString text;
        dialogAnswer answer([&](QWidget* dialog) {
            if (const auto* const box = qobject_cast<QMessageBox*>(dialog)) {
                text = box->text();
            }
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        step();
        QTRY_VERIFY(answer.given());
        QVERIFY2(text.contains("Готово?"), qPrintable(text));
        QCOMPARE(stop(), int(QString("MESSAGEBOX(\"Готово?\");\n").size()));
        step();
        QCOMPARE(variable(u"a"), QString("1"));
        localHost::install(&host_);
    }

    void consoleGoesWhileAProgramAsks() {
        localVclHost real;
        localHost::install(&real);
        debug("MESSAGEBOX(\"never mind\");\na = 1;\n");
        dialogAnswer answer([&](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
        enter("STEP");
        end();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        localHost::install(&host_);
    }

    void variablesOfADebugRunMayBeLookedAt() {
        debug("a = 1;\n");
        QCOMPARE(outputOf("? thisThread").size(), 1);
        QCOMPARE(outputOf("copy = thisThread"), QStringList());
        runThrough();
        debug("b = 1;\n");
        QCOMPARE(outputOf("? copy").size(), 1);
        enter("CLEAR MEMORY");
        step();
        QCOMPARE(variable(u"b"), QString("1"));
    }

    // --- the console's slots for a thread

    void linesOfAThreadAreWrittenWithATail() {
        std::u16string line = u"строка";
        takeOutput();
        shown().fromThread(&line);
        shown().fromThreadAsQString("другая");
        QCOMPARE(output_.size(), 2);
        QVERIFY(output_[0].startsWith("строка func: fromThread "));
        QCOMPARE(withoutTail(output_[1]), QString("другая"));
        QCOMPARE(inputLine(), prompt);
    }

    // --- TRACE

    void traceShowsAndRunsEachStatement() {
        const QString program = "a = 1;\n? a+1;\n";
        write("watched.prg", program.toUtf8());
        localProcess process;
        process.delay = 30;
        QList<int> places;
        connect(buffer_.get(), &localCoutBuffer::COUT, this, [&](const QString& line) {
            if (line == "2") {
                places.append(shownEditor()->textCursor().position());
            }
        });
        takeOutput();
        int status = localErrorTypeOK;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(process.trace(status, u" watched.prg", shown().context()));
        // Three statements, the RETURN of the end among them.
        QVERIFY(timer.elapsed() >= 3 * process.delay);
        QStringList written;
        for (const QString& line : takeOutput()) {
            written.append(withoutTail(line));
        }
        QCOMPARE(written.size(), 8);
        QCOMPARE(written[0], QString("trace СТАРТ!!!!!!: "));
        QCOMPARE(written[1], QString("СТАРТ!!!!!!: "));
        QVERIFY(written[2].contains("var [THISPROCESS]"));
        QCOMPARE(written.mid(3), QStringList({"0 type: 1 operShow!!!!!!: ", "0 type: 5 operShow!!!!!!: ",
                                              "7 type: 7 operShow!!!!!!: ", "2",
                                              "7 type: 8 operShow!!!!!!: "}));
        QCOMPARE(places, QList<int>({int(program.indexOf("?"))}));
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY(shownEditor()->window()->windowTitle().contains("watched.prg"));
    }

    void traceCommandHoldsEachStatementForASecond() {
        write("watched.prg", "a = 1;\n");
        takeOutput();
        QElapsedTimer timer;
        timer.start();
        enter("TRACE watched.prg");
        QVERIFY(timer.elapsed() >= 2000);
        QCOMPARE(withoutTail(output_.first()), QString("process init [ watched.prg] "));
        QVERIFY(output_.first().contains(" func: cmdExec "));
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY(!shown().isBusy());
        QCOMPARE(inputLine(), prompt);
        QCOMPARE(outputOf("? thisProcess").size(), 1);
    }

    void keysAreDroppedDuringATrace() {
        write("watched.prg", "? \"now\";\n");
        connect(buffer_.get(), &localCoutBuffer::COUT, &shown(), [&](const QString& line) {
            if (line == "now") {
                QVERIFY(shown().isBusy());
                enter("lost = 1");
            }
        });
        enter("TRACE watched.prg");
        QVERIFY(output_.contains("now"));
        QCOMPARE(variable(u"lost"), QString());
        QCOMPARE(inputLine(), prompt);
    }

    void traceOfBranchesAndBlocks() {
        write("watched.prg", "IF 1=1 THEN\na = 1;\nENDIF;\nFOR i = 1 TO 1 DO\nb = i;\nENDDO;\n");
        localProcess process;
        process.delay = 1;
        int status = localErrorTypeOK;
        takeOutput();
        QVERIFY(process.trace(status, u"watched.prg", shown().context()));
        QStringList nodes;
        for (const QString& line : takeOutput().filter(" operShow!!!!!!: ")) {
            nodes.append(line.left(line.indexOf(" operShow")));
        }
        const QString loop = "26";
        QCOMPARE(nodes, QStringList({"0 type: 1", "0 type: 6", "0 type: 1", "12 type: 5",
                                     loop + " type: 5", loop + " type: 9", loop + " type: 1",
                                     "44 type: 5", loop + " type: 5", loop + " type: 8"}));
    }

    void traceThatFailsTells_data() {
        QTest::addColumn<QByteArray>("program");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("run") << QByteArray("a = 1;\n? nothere;\n") << int(localErrorTypeATTRIBUTEWRONG) << "Неверный атрибут.";
        QTest::newRow("compile") << QByteArray("IF 1 THEN\n") << int(localErrorTypeENDIFEXPECTED) << "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\"";
    }
    void traceThatFailsTells() {
        QFETCH(QByteArray, program);
        QFETCH(int, status);
        QFETCH(QString, message);
        write("watched.prg", program);
        localProcess process;
        process.delay = 1;
        int left = localErrorTypeOK;
        takeOutput();
        QVERIFY(!process.trace(left, u"watched.prg", shown().context()));
        QCOMPARE(left, status);
        QVERIFY2(output_.last().startsWith(message), qPrintable(output_.join('|')));
        QVERIFY(output_.last().contains(" func: trace "));
    }

    void traceNeedsAFile() {
        localProcess process;
        QCOMPARE(process.delay, 1000);
        int status = localErrorTypeOK;
        QVERIFY(!process.trace(status, u"  ", shown().context()));
        QCOMPARE(status, int(localErrorTypeSYNTAX));
        status = localErrorTypeOK;
        QVERIFY(!process.trace(status, u"nothere.prg", shown().context()));
        QCOMPARE(status, int(localErrorTypeFILENOTFOUND));
        QVERIFY(shownEditor() == nullptr);
    }

    void editorClosedDuringATrace_data() {
        QTest::addColumn<QString>("line");
        QTest::newRow("at the start") << "trace СТАРТ!!!!!!: ";
        QTest::newRow("in the program") << "now";
    }
    void editorClosedDuringATrace() {
        QFETCH(QString, line);
        write("watched.prg", "? \"now\";\na = 1;\n");
        localProcess process;
        process.delay = 1;
        connect(buffer_.get(), &localCoutBuffer::COUT, this, [&](const QString& written) {
            if (withoutTail(written) == line && shownEditor() != nullptr) {
                delete shownEditor()->window();
            }
        });
        int status = localErrorTypeOK;
        QVERIFY(process.trace(status, u"watched.prg", shown().context()));
        QVERIFY(shownEditor() == nullptr);
        QCOMPARE(variable(u"a"), QString("1"));
    }

    void functionsOfATracedProgramWorkInTheConsole() {
        write("watched.prg", "FUNCTION twice(n)\nRETURN n*2;\nENDFUNCTION;\na = twice(2);\n");
        {
            localProcess process;
            process.delay = 1;
            int status = localErrorTypeOK;
            QVERIFY(process.trace(status, u"watched.prg", shown().context()));
        }
        QCOMPARE(variable(u"a"), QString("4"));
        QCOMPARE(outputOf("? twice(21)"), QStringList({"42"}));
    }

    void traceAtAStopOfDebug() {
        write("traced.prg", "fromTrace = x+1;\n");
        debug("x = 5;\ny = fromTrace;\n");
        step();
        localProcess process;
        process.delay = 1;
        int status = localErrorTypeOK;
        QVERIFY(process.trace(status, u"traced.prg", shown().context()));
        step();
        QCOMPARE(variable(u"y"), QString("6"));
    }

    // --- the manual

    void withoutAManualTheBoxWaitsForAnAnswer() {
        localVclHost real;
        localHost::install(&real);
        QString title, text;
        auto icon = QMessageBox::NoIcon;
        dialogAnswer answer([&](QWidget* dialog) {
            if (const auto* const box = qobject_cast<QMessageBox*>(dialog)) {
                title = box->windowTitle();
                text = box->text();
                icon = box->icon();
            }
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        enter("MANUAL");
        localHost::install(&host_);
        QVERIFY(answer.given());
        QCOMPARE(title, QString("Help"));
        QCOMPARE(text, QString("Файл testHelpLocalInterpretatorUtf8.prg не найден!"));
        QCOMPARE(icon, QMessageBox::Warning);
        QCOMPARE(inputLine(), prompt);
    }

    void manualRunsAtAStop() {
        write("testHelpLocalInterpretatorUtf8.prg", "? \"страница\";\n");
        debug("a = 1;\nb = 2;\n");
        QCOMPARE(outputOf("MANUAL"), QStringList({"страница"}));
        QVERIFY(step() > 0);
        QCOMPARE(variable(u"a"), QString("1"));
    }

    // --- for a person to look at

    void picture() {
        const QString program = "// Сумма квадратов.\nсумма = 0;\nFOR i = 1 TO 3 DO\n"
                                "    сумма = сумма+i*i;\nENDDO;\n? сумма;\n";
        debug(program);
        step();
        step();
        step();
        QCOMPARE(shown().editor()->textCursor().block().text().trimmed(), QString("сумма = сумма+i*i;"));
        shown().editor()->resize(500, 240);
        shown().editor()->window()->adjustSize();
        QVERIFY(saveScreenshot(*shown().editor()->window(), "debugEditor"));
        enter("? сумма");
        shown().resize(600, 300);
        QVERIFY(saveScreenshot(shown(), "debugConsole"));
    }
};

QTEST_MAIN(debugging)
#include "debugging.moc"
