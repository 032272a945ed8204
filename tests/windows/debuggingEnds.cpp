// How a program under DEBUG ends: by itself, by a fault, with its windows, or with the console.
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "debugTest.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::withoutTail;
using consoleTest::write;

namespace {
const QString endOfTheFirst = "Прежняя программа под DEBUG остановлена.";
}

class debuggingEnds : public debugTest {
    Q_OBJECT

private slots:
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
        QCOMPARE(output_, QStringList({endOfTheFirst}));
        // A program that has ended is no loss.
        debug("e = 5;\n");
        QVERIFY2(output_.isEmpty(), qPrintable(output_.join('|')));
    }

    void secondDebugWhileNewsOfTheFirstAreOnTheirWay() {
        write("watched.prg", "a = 1;\nb = 2;\n");
        enter("DEBUG watched.prg");
        stop();
        QVERIFY(goOnUnheard());
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

    void allEditorsGoWithTheConsole() {
        debug("a = 1;\n");
        const QPointer<localVclWidgetEditor> first = shown().editor();
        debug("b = 1;\n");
        const QPointer<localVclWidgetEditor> second = shown().editor();
        QVERIFY(second != first);
        enter("TRACE watched.prg");
        end();
        QTRY_VERIFY(first.isNull());
        QVERIFY(second.isNull());
        QTRY_VERIFY(shownEditor() == nullptr);
    }

    void consoleGoesAtAStopWithTheEditorsTextNotSaved() {
        debug("a = 1;\nb = 2;\n");
        consoleTest::type(*shown().editor(), "// ");
        // The box takes events while the console is on its way out, and the worker's news are among
        // them.
        QVERIFY(goOnUnheard());
        const QPointer<localVclWidgetEditor> editor = shown().editor();
        dialogAnswer answer([&](QWidget* dialog) {
            QCoreApplication::processEvents();
            static_cast<QMessageBox*>(dialog)->button(QMessageBox::Discard)->click();
        });
        end();
        QVERIFY(answer.given());
        QTRY_VERIFY(editor.isNull());
    }

    void programEndedInTheMiddleSaysNothing() {
        const QString program = "FUNCTION f(n)\nRETURN n;\nENDFUNCTION;\na = f(1);\n";
        debug(program);
        QVERIFY(stepTo(program, "RETURN n"));
        QCOMPARE(debug("b = 2;\n"), 0);
        QCOMPARE(output_, QStringList({endOfTheFirst}));
        QCOMPARE(variable(u"a"), QString());
        // And a function of the first is as good as ever.
        QCOMPARE(outputOf("? f(5)"), QStringList({"5"}));
    }

    void consoleGoesInTheMiddleOfAStatement_data() {
        QTest::addColumn<QString>("loop");
        QTest::newRow("silent") << "WHILE 1 DO\nk = 1;\nENDDO;\n";
        QTest::newRow("without statements of its own")
            << "WHILE k>0 DO\nIF k THEN k = k; ENDIF;\nENDDO;\n";
        QTest::newRow("writing") << "WHILE 1 DO\n? \"line\";\nENDDO;\n";
        QTest::newRow("calling")
            << "FUNCTION f(n) RETURN n; ENDFUNCTION;\nWHILE f(k) DO\nf(1);\nENDDO;\n";
    }
    void consoleGoesInTheMiddleOfAStatement() {
        QFETCH(QString, loop);
        write("endless.prg", "k = 1;\n? \"started\";\n" + loop.toUtf8());
        debug("DO \"endless.prg\" ;\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        QTRY_VERIFY(output_.contains("started"));
        QVERIFY(shown().thread()->isWorking());
        end();
        QVERIFY(console_ == nullptr);
        QVERIFY2(!isOutput("ERROR!!!") && !isOutput("Слишком"),
                 qPrintable(output_.join('|').right(500)));
    }

    void windowClosesWhileACommandWaitsForTheWorker() {
        write("endless.prg", "? \"started\";\nWHILE 1 DO\nk = 1;\nENDDO;\n");
        debug("DO \"endless.prg\" ;\na = 1;\n");
        enter("STEP");
        QTRY_VERIFY(output_.contains("started"));
        // Events are not taken before the command waits.
        QTimer::singleShot(0, &shown(), [this] { shown().window()->close(); });
        QCOMPARE(outputOf("x = 1"), QStringList());
        QVERIFY(shown().thread()->isFinished());
        QCOMPARE(variable(u"x"), QString());
        QTRY_VERIFY(!shown().isVisible());
    }

    void linesOfTheWorkerDoNotFillTheMemory() {
        defineLines();
        debug("x = lines(3000);\na = 1;\n");
        QAtomicInt ahead = 0;
        connect(
            buffer_.get(), &localCoutBuffer::COUT, buffer_.get(), [&] { ++ahead; },
            Qt::DirectConnection);
        shown().thread()->fromConsole(u"STEP");
        // As long as this thread takes no lines, the worker comes to a stand before all are
        // written.
        while (ahead < 100) {
            QThread::msleep(1);
        }
        QThread::msleep(300);
        QVERIFY2(ahead <= 1000, qPrintable(QString::number(ahead)));
        QVERIFY(shown().thread()->isWorking());
        stop();
        QCOMPARE(output_.count("worker"), 3000);
    }

    void linesOfBothThreadsStayWhole() {
        constexpr int count = 4000;
        defineLines();
        debug("x = lines(" + QString::number(count) + ");\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        int own = 0;
        while (shown().thread()->isWorking()) {
            // So many lines are more than could wait already, so the worker writes while this one
            // is open.
            const auto enough = output_.size() + 1200;
            std::cout << "own ";
            while (output_.size() < enough && shown().thread()->isWorking()) {
                QCoreApplication::processEvents();
            }
            std::cout << "line" << std::endl;
            ++own;
        }
        stop();
        QVERIFY(own > 1);
        QCOMPARE(output_.count("own line"), own);
        QCOMPARE(output_.count("worker"), count);
        QCOMPARE(output_.size(), own + count);
    }

    void linesOfTheWorkerStandBeforeThoseOfTheNextCommand() {
        defineLines();
        debug("x = lines(50);\na = 1;\n");
        QVERIFY(goOnUnheard());
        shown().cmdExec("? \"console\"");
        QCOMPARE(lines().count("worker"), 50);
        QCOMPARE(lines().filter(QRegularExpression("^(worker|console)$")).last(),
                 QString("console"));
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
        QVERIFY2(
            output_.last().startsWith("Неверный атрибут. func: call file: MyThread.cpp line: "),
            qPrintable(output_.join('|')));
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(outputOf("? a"), QStringList({"1"}));
    }

    void programThatDoesNotCompileTells_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("message");
        QTest::newRow("no end of an IF")
            << "IF 1 THEN\na = 1;\n"
            << "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\"";
        QTest::newRow("end of a loop alone") << "a = 1;\nENDDO;\n"
                                             << "";
        QTest::newRow("no semicolon") << "a = 1\nb = 2;\n"
                                      << "Синтаксическая ошибка. Ожидается \";\"";
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
        write("deep.prg",
              "FUNCTION deep(n)\ndepth = n;\nRETURN deep(n+1)+1;\nENDFUNCTION;\ndepth = 0;\n");
        const QString program = "DO \"deep.prg\" ;\nx = deep(1);\nb = 1;\n";
        QCOMPARE(debug(program), 0);
        QCOMPARE(step(), program.indexOf("x = "));
        QCOMPARE(step(), ended);
        QVERIFY2(isOutput("Слишком глубокая вложенность или рекурсия!"),
                 qPrintable(output_.last()));
        QVERIFY(output_.last().contains(" func: call "));
        QVERIFY(variable(u"depth").toInt() > 20);
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
    }

    void deepRecursionWithStopsFails() {
        debug("FUNCTION deep(n)\nRETURN deep(n+1)+1;\nENDFUNCTION;\nx = deep(1);\nb = 1;\n");
        runThrough();
        QVERIFY2(isOutput("Слишком глубокая вложенность или рекурсия!"),
                 qPrintable(output_.last()));
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

    void windowsOfADebuggedProgramOpen_data() {
        QTest::addColumn<QString>("statement");
        QTest::newRow("text") << "STRINGSHOW(\"текст\");";
        QTest::newRow("test") << "___TEST(\"текст\");";
        QTest::newRow("editor") << "EDIT COMMAND \"other.prg\" ;";
    }
    void windowsOfADebuggedProgramOpen() {
        QFETCH(QString, statement);
        const auto windows = [] {
            int count = 0;
            for (const QWidget* const widget : QApplication::topLevelWidgets()) {
                count +=
                    qobject_cast<const localMainWindow*>(widget) != nullptr && widget->isVisible();
            }
            return count;
        };
        write("other.prg", "? 1;\n");
        debug(statement + "\na = 1;\n");
        const int before = windows();
        QVERIFY(step() > 0);
        QCOMPARE(windows(), before + 1);
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
        runThrough();
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(windows(), before + 1);
    }

    void commandWaitsUntilTheProgramsQuestionIsAnswered() {
        localVclHost real;
        localHost::install(&real);
        debug("day = DATECHOOSEASSTRING(\"05.06.2020\");\na = 1;\n");
        dialogAnswer answer([&](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        shown().thread()->fromConsole(u"STEP");
        QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
        QVERIFY(answer.given());
        QCOMPARE(variable(u"day"), QString());
        QVERIFY(shown().context()->varFind(u"day") != nullptr);
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
};

QTEST_MAIN(debuggingEnds)
#include "debuggingEnds.moc"
