// A program under TRACE, which pauses at each statement; and the manual, which is a program of its
// own.
#include <QMessageBox>

#include "debugTest.h"
#include "localConsole/debug/localProcess.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::withoutTail;
using consoleTest::write;

class tracing : public debugTest {
    Q_OBJECT

private slots:
    // --- TRACE

    void traceShowsAndRunsEachStatement() {
        const QString program = "a = 1;\n? a+1;\n";
        write("watched.prg", program.toUtf8());
        const localTurn::Hold turn;
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
        QCOMPARE(written.mid(3),
                 QStringList({"0 type: 1 operShow!!!!!!: ", "0 type: 5 operShow!!!!!!: ",
                              "7 type: 7 operShow!!!!!!: ", "2", "7 type: 8 operShow!!!!!!: "}));
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
        const localTurn::Hold turn;
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
        QTest::newRow("run") << QByteArray("a = 1;\n? nothere;\n")
                             << int(localErrorTypeATTRIBUTEWRONG) << "Неверный атрибут.";
        QTest::newRow("compile") << QByteArray("IF 1 THEN\n") << int(localErrorTypeENDIFEXPECTED)
                                 << "Синтаксическая ошибка. Ожидается ключевое слово \"КОНЕЦЕСЛИ\"";
    }
    void traceThatFailsTells() {
        QFETCH(QByteArray, program);
        QFETCH(int, status);
        QFETCH(QString, message);
        write("watched.prg", program);
        const localTurn::Hold turn;
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
        const localTurn::Hold turn;
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
        const localTurn::Hold turn;
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
            const localTurn::Hold turn;
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
        const localTurn::Hold turn;
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
};

QTEST_MAIN(tracing)
#include "tracing.moc"
