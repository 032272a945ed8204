// A program under DEBUG, which waits for STEP before each statement: where it stops, and what may
// be done there.
#include <QLineEdit>

#include "debugTest.h"
#include "localConsole/debug/localProcess.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "screenshot.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::write;

class debugging : public debugTest {
    Q_OBJECT

private slots:
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
                 QStringList({"i = 0;", "WHILE i<2 DO", "i = i+1;", "i = i+1;", "f(i);",
                              "RETURN n;", "FUNCTION f(n)"}));
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

    void placesCountUnitsThatAreNoText() {
        // Each byte of what is no Russian or Latin letter is one unit; one of them is no end of a
        // line.
        write("watched.prg",
              "x = \"\xF0\x9F\x98\x80\xE2\x82\xAC\"; a = 1;\r\n\r\n\tb = 2;\rc = 3;\n");
        enter("DEBUG watched.prg");
        const auto atCursor = [this] { return shown().editor()->toPlainText().mid(stop(), 5); };
        QCOMPARE(atCursor(), QString("x = \""));
        for (const char* const next : {"a = 1", "b = 2", "c = 3", "c = 3"}) {
            enter("STEP");
            QCOMPARE(atCursor(), QString(next));
        }
    }

    void markOfByteOrderIsNoLanguage() {
        write("watched.prg", "\xEF\xBB\xBF"
                             "a = 1;\n");
        const QStringList ofDo = outputOf("DO watched.prg");
        QVERIFY(ofDo.contains("Синтаксическая ошибка."));
        enter("DEBUG watched.prg");
        QCOMPARE(stop(), ended);
        QVERIFY2(output_.last().startsWith("Синтаксическая ошибка. func: call "),
                 qPrintable(output_.last()));
        QCOMPARE(variable(u"a"), QString());
    }

    void functionsCalledInTheMiddleStopAtTheirStatements() {
        const QString program = "FUNCTION fact(n)\n"
                                "    IF n<2 THEN\n"
                                "        RETURN 1;\n"
                                "    ENDIF;\n"
                                "    RETURN n*fact(n-1);\n"
                                "ENDFUNCTION;\n"
                                "x = fact(3)+10;\n";
        const QStringList down = {"IF n<2 THEN", "RETURN n*fact(n-1);"};
        QStringList wanted = {"x = fact(3)+10;"};
        wanted += down + down + QStringList{"IF n<2 THEN", "IF n<2 THEN", "RETURN 1;"};
        wanted.append("x = fact(3)+10;");
        QCOMPARE(stops(program), wanted);
        QCOMPARE(variable(u"x"), QString("16"));
    }

    void programsRunByDoAreOneStatement() {
        write("inner.prg", "n = 1;\nn = n+1;\nn = n+1;\n");
        QCOMPARE(stops("DO \"inner.prg\";\nm = n;\n"),
                 QStringList({"DO \"inner.prg\";", "m = n;", "m = n;"}));
        QCOMPARE(variable(u"m"), QString("3"));
    }

    void functionOfTheDebuggedProgramStopsAlsoWhenADoCallsIt() {
        write("inner.prg", "n = twice(4);\n");
        QCOMPARE(stops("FUNCTION twice(n)\nRETURN n*2;\nENDFUNCTION;\nDO \"inner.prg\";\n"),
                 QStringList({"DO \"inner.prg\";", "RETURN n*2;", "DO \"inner.prg\";"}));
        QCOMPARE(variable(u"n"), QString("8"));
    }

    void breakAndEarlyReturnLeaveTheirBlocks() {
        const QString head = "FOR i = 1 TO 9 DO";
        QCOMPARE(
            stops(
                "FOR i = 1 TO 9 DO\nIF i=1 THEN\nBREAK;\nENDIF;\nENDDO;\nRETURN 2;\nnever = 1;\n"),
            QStringList({head, head, "IF i=1 THEN", "IF i=1 THEN", "BREAK;", "RETURN 2;"}));
        // Any value is an end without a message.
        QVERIFY2(output_.isEmpty(), qPrintable(output_.join('|')));
        QCOMPARE(variable(u"never"), QString());
    }

    void branchWithoutStatementsFailsAsEver() {
        QCOMPARE(stops("IF 1 THEN\nENDIF;\nb = 1;\n"), QStringList({"IF 1 THEN", "IF 1 THEN"}));
        QVERIFY2(output_.last().startsWith("Ок. Ошибки отсутствуют func: call "),
                 qPrintable(output_.join('|')));
        QCOMPARE(variable(u"b"), QString());
    }

    void faultInAFunctionEndsTheProgram() {
        debug("FUNCTION f(n)\nx = n;\n? nothere;\nRETURN n;\nENDFUNCTION;\n"
              "a = 1;\nb = f(a);\nc = 2;\n");
        runThrough();
        QVERIFY2(output_.last().startsWith("Неверный атрибут. func: call "),
                 qPrintable(output_.last()));
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(variable(u"b"), QString());
        QCOMPARE(variable(u"c"), QString());
    }

    void programOfVeryManyLines() {
        constexpr int count = 100000;
        QString program = "i = 0;\n";
        for (int line = 1; line < count; ++line) {
            program += "i = i+1;\n";
        }
        QCOMPARE(debug(program), 0);
        QCOMPARE(step(), 7);
        QCOMPARE(shown().editor()->blockCount(), count);
        QCOMPARE(step(), 7 + 9);
        QCOMPARE(variable(u"i"), QString("1"));
        // It ends at the stop at which it stands, and so do the many statements behind it.
        QCOMPARE(debug("a = 1;\n"), 0);
    }

    void geometryIsSavedWhenTheWorkerHasStopped() {
        // The wait cursor of a DO keeps the worker at work until this thread takes events again.
        write("slow.prg", "n = 0;\n");
        debug("DO \"slow.prg\";\nb = n;\n");
        QTRY_VERIFY(QFile::exists("localConsole.ini"));
        QVERIFY(QFile::remove("localConsole.ini"));
        shown().thread()->fromConsole(u"STEP");
        QVERIFY(workerHasTheTurn());
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
        QTRY_COMPARE(lines(), QStringList({prompt + "DEBUG watched.prg", prompt + "STEP",
                                           "from afar", prompt + "half"}));
    }

    void commandWaitsForTheWorkerToStop() {
        // The loop runs within one statement: the command below must see all of its work.
        write("slow.prg", "n = 0;\nWHILE n<3000 DO\nn = n+1;\nENDDO;\n");
        debug("n = 0;\nDO \"slow.prg\";\nb = n;\n");
        step();
        enter("STEP");
        QCOMPARE(outputOf("? n").last(), QString("3000"));
    }

    void memoryClearedAtAStop_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("by the language") << "CLEAR MEMORY";
        QTest::newRow("by the console") << "C1LEAR MEMORY";
        QTest::newRow("the run's own variables") << "C1LEAR MEMORY this*";
        QTest::newRow("F8") << "";
    }
    void memoryClearedAtAStop() {
        QFETCH(QString, command);
        const QString program = "FUNCTION f(n)\n"
                                "    m = n+1;\n"
                                "    RETURN m;\n"
                                "ENDFUNCTION;\n"
                                "list = CREATEOBJECT(\"VALUELIST\");\n"
                                "a = 1;\n"
                                "list.valueAdd(f(a), \"one\");\n"
                                "a = f(5);\n"
                                "FOR i = 1 TO f(1) DO\n"
                                "    b = i;\n"
                                "ENDDO;\n";
        const auto clear = [&] {
            command.isEmpty() ? key(Qt::Key_F8) : enter(command);
            QCOMPARE(variable(u"thisThread"), QString());
        };
        for (const char* const place : {"list = ", "m = n", "RETURN m", "a = f(5)", "b = i"}) {
            debug(program);
            QVERIFY2(stepTo(program, place), place);
            clear();
            runThrough();
            QCOMPARE(outputOf("? 6*7"), QStringList({"42"}));
        }
        // With a clear context an assignment alone goes on.
        debug("a = 1;\nb = 2;\n");
        step();
        clear();
        runThrough();
        QCOMPARE(variable(u"b"), QString("2"));
    }

    void functionDefinedAnewWhileItStands() {
        const QString program =
            "FUNCTION f(n)\na = n;\nRETURN a*2;\nENDFUNCTION;\nx = f(4);\ny = f(4);\n";
        write("other.prg", "FUNCTION f(n)\nRETURN n*100;\nENDFUNCTION;\n");
        debug(program);
        QVERIFY(stepTo(program, "a = n"));
        enter("DO \"other.prg\"");
        runThrough();
        QCOMPARE(variable(u"x"), QString("8"));
        QCOMPARE(variable(u"y"), QString("400"));
    }

    void functionOfAnEarlierRunStopsInALaterOne() {
        debug("FUNCTION f(n)\na = n;\nRETURN a*2;\nENDFUNCTION;\nx = f(4);\n");
        runThrough();
        write("other.prg", "FUNCTION f(n)\nRETURN n*100;\nENDFUNCTION;\n");
        const QString program = "y = f(4);\nDO \"other.prg\";\nz = f(1);\n";
        QCOMPARE(debug(program), 0);
        step();
        step();
        QCOMPARE(step(), program.indexOf("DO"));
        QCOMPARE(variable(u"y"), QString("8"));
        // The body that has shown its places goes here.
        QCOMPARE(step(), program.indexOf("z"));
        QCOMPARE(step(), program.indexOf("z"));
        QCOMPARE(variable(u"z"), QString("100"));
    }

    void ownVariablesOfARunAreNoTools_data() {
        QTest::addColumn<QString>("command");
        QTest::newRow("method") << "? thisThread.start()";
        QTest::newRow("attribute") << "? thisThread.text";
        QTest::newRow("sum") << "? thisThread+1";
        QTest::newRow("comparison") << "? thisThread=thisProcess";
        QTest::newRow("assignment") << "thisThread = 5";
        QTest::newRow("other assignment") << "thisProcess = \"text\"";
        QTest::newRow("JSON") << "? VALUETOJSON(thisThread)";
        QTest::newRow("text") << "? STRING(thisThread)";
    }
    void ownVariablesOfARunAreNoTools() {
        QFETCH(QString, command);
        debug("a = 1;\nb = thisThread;\nc = 3;\n");
        enter(command);
        step();
        enter(command);
        runThrough();
        QCOMPARE(variable(u"c"), QString("3"));
        QVERIFY(shown().editor() != nullptr);
    }

    void editorOfAnotherFileOpensAtAStop() {
        write("other.prg", "? 1;\n");
        debug("a = 1;\nb = 2;\n");
        enter("EDIT COMMAND other.prg");
        QVERIFY(shownEditor() != nullptr);
        step();
        QCOMPARE(shown().editor()->textCursor().position(), 7);
        runThrough();
        QCOMPARE(variable(u"b"), QString("2"));
    }

    void traceCommandAtAStop() {
        write("traced.prg", "fromTrace = 5;\n");
        debug("a = 1;\nb = fromTrace;\n");
        step();
        enter("TRACE traced.prg");
        runThrough();
        QCOMPARE(variable(u"b"), QString("5"));
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

    // --- for a person to look at

    void picture() {
        const QString program = "// Сумма квадратов.\nсумма = 0;\nFOR i = 1 TO 3 DO\n"
                                "    сумма = сумма+i*i;\nENDDO;\n? сумма;\n";
        debug(program);
        step();
        step();
        step();
        QCOMPARE(shown().editor()->textCursor().block().text().trimmed(),
                 QString("сумма = сумма+i*i;"));
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
