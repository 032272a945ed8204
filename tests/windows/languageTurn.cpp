// Windows beside a program under DEBUG: one thread at a time is in the language, and nobody hangs.
#include <QCalendarWidget>
#include <QClipboard>
#include <QDialog>
#include <QEventLoop>
#include <QPainter>
#include <QSemaphore>

#include <functional>
#include <vector>

#include "browserTest.h"
#include "debugTest.h"
#include "localConsole/help/localConsoleHelpBrowser.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/library/localExtension.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localRandom.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/grid/localVclTestWidgetValueTable200617.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclTurn.h"
#include "windowTest.h"

using consoleTest::write;

namespace {

constexpr int longest = 100000;  // milliseconds that a statement may take on a busy machine

QString valueOf(localContextUTF8& context, const std::u16string& expression) {
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    localSlot value;
    localInterpretatorUTF8::scanStringGetExpressionAndEvaluete(status, expression, pos,
                                                               value.asResult(), &context, false);
    return value ? localVclQString(value->toString()) : QString();
}

// A window that shows a formula of the language and is painted all the time.
class paintedFormula : public QWidget {
public:
    explicit paintedFormula(localContextUTF8& context) : context_(context) {
        resize(120, 40);
        show();
        timer_.start(1);
        connect(&timer_, &QTimer::timeout, this, [this] { repaint(); });
    }

    int fresh = 0;  // how often the formula was computed
    int last = 0;   // how often the window showed what it had shown before
    int wrong = 0;
    int told = 0;  // how often it was told that the turn is free

protected:
    void paintEvent(QPaintEvent*) override {
        if (const localTurn::Attempt turn; turn) {
            shown_ = valueOf(context_, u"6*7");
            ++fresh;
        } else {
            work_.ask([this] {
                ++told;
                update();
            });
            ++last;
        }
        wrong += shown_ != QStringLiteral("42");
        QPainter(this).drawText(rect(), Qt::AlignCenter, shown_);
    }

private:
    localContextUTF8& context_;
    QTimer timer_;
    localVclTurnWork work_;
    QString shown_ = QStringLiteral("42");
};

// --- stand-ins for functions of libraries that are not here

constexpr int linesOfAWindow = 1000;

// What the code of a window does: it calls a function of the program and writes.
QString windowCode(localContextUTF8& context) {
    const QString value = valueOf(context, u"fib(10)");
    for (int i = 0; i < linesOfAWindow; ++i) {
        writeLine(u"window");
    }
    return value;
}

// Opens a window whose code runs before it is shown.
bool windowOpen(localCall& call) {
    QString value;
    localVclOnWindowThread([&] {
        auto* const window = new QWidget;
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setWindowTitle(value = windowCode(*call.context));
        window->show();
        QTimer::singleShot(0, window, &QWidget::close);
    });
    return call.give(localText(localVclText(value)));
}

// Waits for a dialog whose code runs while it is open.
bool dialogOpen(localCall& call) {
    QString value;
    localVclAskOnWindowThread([&] {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [&] {
            const localTurn::Hold turn;
            value = windowCode(*call.context);
            dialog.accept();
        });
        dialog.exec();
    });
    return call.give(localText(localVclText(value)));
}

QSemaphore worksLong;
QSemaphore mayEnd;

// Waits for something outside of the process, on the thread of the program. A long piece of work in
// the language itself where the address says so.
bool networkWait(localCall& call) {
    if (call.text(1) == u"long") {
        worksLong.release();
        mayEnd.tryAcquire(1, longest);
    } else {
        const localTurn::Pause pause;
        QEventLoop answer;
        QTimer::singleShot(300, &answer, &QEventLoop::quit);
        answer.exec();
    }
    return call.give(200.0);
}

constexpr localExtensionFunction standIns[] = {
    {u"FORMOPEN", windowOpen},
    {u"FORMEDIT", dialogOpen},
    {u"NETWORKREQUESTEXECSYNC", networkWait},
};

// A call that a program under DEBUG makes. A library that brings one that opens, asks or waits adds
// a row.
struct Case {
    const char* name;
    QString call;                          // its value comes into x
    std::function<void(QWidget*)> answer;  // of the modal dialog that it opens; empty without one
    QString value;                         // what x is then
    int lines = 0;                         // "window", written by its code
    bool givesUp = true;                   // formulas are computed while it waits
};

void pressReturn(QWidget* dialog) {
    QTest::keyClick(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog,
                    Qt::Key_Return);
}

std::vector<Case> cases() {
    return {
        {"box", "MESSAGEBOX(\"Готово?\")", pressReturn, "1"},
        {"choice of a row", "list.ROWCHOOSE(\"Ряд\",2)", pressReturn, "2"},
        {"date", "DATECHOOSEASSTRING(\"20200605\")",
         [](QWidget* dialog) {
             QTest::keyClick(dialog->findChild<QCalendarWidget*>(), Qt::Key_Return);
             static_cast<QDialog*>(dialog)->accept();
         },
         "20200605"},
        {"text that is shown", "STRINGSHOW(\"текст\")", {}, "1", 0, false},
        {"sheet that is shown", "sheet.SHOW(\"a\")", {}, "ИСТИНА", 0, false},
        {"table that is shown", "table.SHOW()", {}, "1", 0, false},
        {"window with code", "FORMOPEN(\"\")", {}, "55", linesOfAWindow, false},
        {"dialog with code", "FORMEDIT(\"\")", {}, "55", linesOfAWindow, false},
        {"tree of a data file", "base.TREESHOW()", {}, "ИСТИНА", 0, false},
        {"answer from the network", "NETWORKREQUESTEXECSYNC(\"GET\",\"short\")", {}, "200"},
    };
}

}  // namespace

class languageTurn : public debugTest {
    Q_OBJECT

    // Lets the worker work and waits until it stands at its next stop, or has ended.
    bool worksThrough() {
        shown().thread()->fromConsole(u"STEP");
        return QTest::qWaitFor([this] { return !shown().thread()->isWorking(); }, longest);
    }

    // The worker is in the language, at a statement that does not end by itself.
    bool workLong() {
        debug("x = NETWORKREQUESTEXECSYNC(\"GET\",\"long\");\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        return worksLong.tryAcquire(1, longest);
    }
    bool endLong() {
        mayEnd.release();
        return QTest::qWaitFor([this] { return !shown().thread()->isWorking(); }, longest) &&
               variable(u"x") == "200";
    }

private slots:
    void init() {
        debugTest::init();
        localExtensionAdd({.name = u"stand-ins", .functions = standIns});
        write("fib.prg",
              "FUNCTION fib(n)\nIF n<2 THEN RETURN n; ENDIF;\nRETURN fib(n-1)+fib(n-2);\n"
              "ENDFUNCTION;\n");
        enter("DO fib.prg");
        write("data.sqlite", "");
        qApp->setProperty("dataFileName", "data.sqlite");
        enter("CLASSLOAD(\"DATABASE\")");
        enter("base=CREATEOBJECT(\"DATABASE\")");
        enter("base.CONNECT()");
        enter("list=CREATEOBJECT(\"VALUELIST\")");
        enter("list.VALUEADD(1,\"Первый\")");
        enter("list.VALUEADD(2,\"Второй\")");
        enter("sheet=CREATEOBJECT(\"TABLEDOCUMENT\")");
        enter("table=CREATEOBJECT(\"VALUETABLE\")");
    }

    // --- a program that opens, asks and waits

    void callBesideAPaintedWindow_data() {
        QTest::addColumn<int>("number");
        const std::vector<Case> all = cases();
        for (std::size_t i = 0; i < all.size(); ++i) {
            QTest::newRow(all[i].name) << static_cast<int>(i);
        }
    }
    void callBesideAPaintedWindow() {
        QFETCH(int, number);
        const Case tried = cases()[static_cast<std::size_t>(number)];
        localVclHost real;
        localHost::install(&real);
        paintedFormula formula(*shown().context());
        QVERIFY(debug("x = " + tried.call + ";\na = 1;\n") == 0);
        const auto computesAgain = [&formula, before = formula.fresh] {
            return formula.fresh > before;
        };
        std::optional<dialogAnswer> answer;
        bool computed = false;
        if (tried.answer) {
            answer.emplace([&](QWidget* dialog) {
                computed = QTest::qWaitFor(computesAgain, longest);
                tried.answer(dialog);
            });
        }
        takeOutput();
        QVERIFY(worksThrough());
        QCOMPARE(variable(u"x"), tried.value);
        QCOMPARE(output_.count("window"), tried.lines);
        if (answer) {
            QVERIFY(answer->given());
            QVERIFY(computed);
        } else if (tried.givesUp) {
            QVERIFY(computesAgain());
        }
        QVERIFY(worksThrough());
        QCOMPARE(variable(u"a"), QString("1"));
        QCOMPARE(formula.wrong, 0);
        localHost::install(&host_);
    }

    // The same without DEBUG, where the program runs on the windows' thread.
    void callTypedBesideAPaintedWindow_data() { callBesideAPaintedWindow_data(); }
    void callTypedBesideAPaintedWindow() {
        QFETCH(int, number);
        const Case tried = cases()[static_cast<std::size_t>(number)];
        localVclHost real;
        localHost::install(&real);
        paintedFormula formula(*shown().context());
        std::optional<dialogAnswer> answer;
        if (tried.answer) {
            answer.emplace(tried.answer);
        }
        takeOutput();
        // A key would not come back before the dialog is answered: the answer comes by a timer.
        enter("x = " + tried.call);
        QCOMPARE(variable(u"x"), tried.value);
        QCOMPARE(output_.count("window"), tried.lines);
        QCOMPARE(formula.wrong, 0);
        QVERIFY(!localTurn::isHeld());
        localHost::install(&host_);
    }

    void formulaShowsWhatItShowedAndComesBack() {
        paintedFormula formula(*shown().context());
        QVERIFY(workLong());
        formula.last = 0;
        formula.told = 0;
        const int before = formula.fresh;
        QTRY_VERIFY(formula.last > 2);
        QCOMPARE(formula.fresh, before);
        QCOMPARE(formula.told, 0);
        QVERIFY(endLong());
        QTRY_VERIFY(formula.told > 0);
        QVERIFY(formula.fresh > before);
        QCOMPARE(formula.wrong, 0);
    }

    void gridShowsWhatItShowedAndComesBack() {
        std::unique_ptr<localVclTestWidgetValueTable200617> grid;
        localValueDescription value;
        const auto setCell = [&](double number) {
            const localTurn::Hold turn;
            localValueTable::of(value)->cell(1, 0).setVal(number);
        };
        {
            const localTurn::Hold turn;
            auto* const table = new localValueTable;
            value.objectBind(table, localValueTable::classDeclaration());
            table->columnAdd(u"A");
            for (int row = 0; row < 40; ++row) {
                table->rowAdd();
            }
            grid = std::make_unique<localVclTestWidgetValueTable200617>(value, shown().context());
            for (const char16_t* const formula : {u"A*1", u"fib(5)"}) {
                auto column = std::make_unique<localVclGridColumn>();
                column->formula = formula;
                column->width = 100;
                grid->addColumn(std::move(column));
            }
            table->cell(1, 0).setVal(1111.0);
        }
        grid->resize(300, 200);
        grid->show();
        QVERIFY(QTest::qWaitForWindowActive(grid.get()));
        const auto cell = [&] { return grid->grab(grid->cellRectangle(2, 1)).toImage(); };
        setCell(2222);
        grid->refresh();
        QCoreApplication::processEvents();
        const QImage before = cell();
        setCell(1111);
        grid->refresh();
        QCoreApplication::processEvents();
        const QImage after = cell();
        QVERIFY(before != after);
        setCell(2222);
        grid->refresh();
        QTRY_VERIFY(cell() == before);

        QVERIFY(workLong());
        // The program has the turn: nobody else may touch the table, and here nobody looks at it.
        localValueTable::of(value)->cell(1, 0).num = 1111.0;
        grid->refresh();
        for (int i = 0; i < 30; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Down);
            QCoreApplication::processEvents();
        }
        QCOMPARE(grid->currentRow(), grid->visibleRows() - 1);
        for (int i = 0; i < 60; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Up);
        }
        QCoreApplication::processEvents();
        QTest::keyClick(grid.get(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid.get(), Qt::Key_Up);
        QTest::keyClick(grid.get(), Qt::Key_C, Qt::ControlModifier);
        QTest::keyClick(grid.get(), Qt::Key_F12);
        QCoreApplication::processEvents();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(cell() == before);
        const dialogAnswer answer([](QWidget* dialog) { static_cast<QDialog*>(dialog)->reject(); });
        QVERIFY(endLong());
        QTRY_VERIFY(answer.given());
        QTRY_VERIFY(cell() == after);
        QCOMPARE(QApplication::clipboard()->text(), QString("0"));
        grid.reset();
        const localTurn::Hold turn;
        value.reset();
    }

    void gridThatGoesWhileAProgramWorks() {
        const auto counts = [] {
            const localTurn::Hold turn;
            return std::pair(localValueTable::counterStaticTotal,
                             localContextUTF8::counterStaticTotal);
        };
        const auto before = counts();
        std::unique_ptr<localVclTestWidgetValueTable200617> grid;
        {
            const localTurn::Hold turn;
            localValueDescription value;
            value.objectBind(new localValueTable, localValueTable::classDeclaration());
            grid = std::make_unique<localVclTestWidgetValueTable200617>(value, shown().context());
        }
        grid->show();
        QVERIFY(workLong());
        grid->refresh();
        QCoreApplication::processEvents();
        grid.reset();
        QVERIFY(endLong());
        QTRY_COMPARE(counts(), before);
    }

    // --- windows that are used while a program works

    void editorsAreMadeWhileAProgramWorks() {
        constexpr int most = 500;
        const std::u16string text = u"FUNCTION f(n)\n// a comment\nRETURN STRINGLEN(\"text\");\n"
                                    u"ENDFUNCTION;\n";
        debug("x = fib(25);\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        QVERIFY(workerHasTheTurn());
        for (int i = 0; i < most; ++i) {
            localVclWidgetEditor editor(u"other.prg", text);
            QCOMPARE(editor.blockCount(), 5);
        }
        QVERIFY(QTest::qWaitFor([this] { return !shown().thread()->isWorking(); }, longest));
        QCOMPARE(variable(u"x"), QString("75025"));
        QVERIFY(worksThrough());
        QCOMPARE(variable(u"a"), QString("1"));
        QVERIFY2(output_.isEmpty(), qPrintable(output_.join('|')));
    }

    // A scope of its own would begin the random sequence again.
    void editorMakesNoScope() {
        localRandomSeed(1);
        localRandom();
        const auto second = localRandom();
        localRandomSeed(1);
        localRandom();
        const auto contexts = localContextUTF8::counterStaticTotal;
        const auto usedSlots = localMemoryManager::manager->getUsedCount();
        const localVclWidgetEditor editor(u"other.prg", u"x = STRINGLEN(\"text\");\n");
        QCOMPARE(localRandom(), second);
        QCOMPARE(localContextUTF8::counterStaticTotal, contexts);
        QCOMPARE(localMemoryManager::manager->getUsedCount(), usedSlots);
    }

    void listOfProceduresComesWhenTheTurnIsFree() {
        localVclWidgetEditor editor(u"other.prg", u"a = 1;\nFUNCTION second(n)\nENDFUNCTION;\n");
        editor.show();
        QVERIFY(workLong());
        bool opened = false;
        bool whileWorking = false;
        const dialogAnswer answer([&](QWidget* dialog) {
            opened = qobject_cast<localVclQStringListGetItemDialog*>(dialog) != nullptr;
            whileWorking = shown().thread()->isWorking();
            pressReturn(dialog);
        });
        QTest::keyClick(&editor, Qt::Key_P, Qt::AltModifier);
        QTest::keyClick(&editor, Qt::Key_P, Qt::AltModifier);
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(endLong());
        QTRY_VERIFY(opened);
        QVERIFY(!whileWorking);
        QTRY_COMPARE(editor.textCursor().blockNumber(), 1);
    }

    void linkLeadsOnWhenTheTurnIsFree() {
        std::unique_ptr<localConsoleHelpBrowser> browser;
        {
            const localTurn::Hold turn;
            browser = std::make_unique<localConsoleHelpBrowser>();
            QVERIFY(browser->parseHelpFromJson(
                u"{\"main\":\"<a href='#console'>next</a>\",\"console\":\"second page\"}"));
            browser->goTo(u"#main");
        }
        browser->show();
        QVERIFY(workLong());
        QVERIFY(browserTest::clickLink(*browser, "next"));
        QVERIFY(browser->toPlainText().contains("next"));
        QVERIFY(endLong());
        QTRY_VERIFY(browser->toPlainText().contains("second page"));
    }

    void pagesOfAClosedBookGoWhenTheTurnIsFree() {
        const auto tables = [] {
            const localTurn::Hold turn;
            return localValueTable::counterStaticTotal;
        };
        const auto before = tables();
        std::unique_ptr<localConsoleHelpBrowser> browser;
        {
            const localTurn::Hold turn;
            browser = std::make_unique<localConsoleHelpBrowser>();
        }
        QCOMPARE(tables(), before + 1);
        QVERIFY(workLong());
        browser.reset();
        QVERIFY(endLong());
        QTRY_COMPARE(tables(), before);
    }

    void workOfAWindowThatHasGoneIsForgotten() {
        QVERIFY(workLong());
        QStringList done;
        {
            localVclTurnWork gone;
            gone.ask([&] { done.append("gone"); });
        }
        localVclTurnWork stays;
        stays.ask([&] { done.append("first"); });
        stays.ask([&] { done.append("second"); });
        localVclTurnWork::askOnce([&] { done.append("once"); });
        QVERIFY(done.isEmpty());
        QVERIFY(endLong());
        QTRY_COMPARE(done.size(), 2);
        QVERIFY(done.contains("second"));
        QVERIFY(done.contains("once"));
    }

    // --- commands

    void commandWaitsForTheStatement() {
        debug("x = fib(20);\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        QCOMPARE(outputOf("? x"), QStringList({"6765"}));
        QVERIFY(!localTurn::isHeld());
    }

    void workerWaitsForTheCommand() {
        // The command lets the program go on in the middle of itself, and is still alone.
        debug("x = 1;\na = 1;\n");
        bool goneOn = false;
        connect(buffer_.get(), &localCoutBuffer::COUT, this, [&](const QString& line) {
            if (line == "window" && !goneOn) {
                goneOn = true;
                shown().thread()->fromConsole(u"STEP");
            }
        });
        enter("y = FORMOPEN(\"\")");
        QVERIFY(goneOn);
        QCOMPARE(variable(u"y"), QString("55"));
        QVERIFY(QTest::qWaitFor([this] { return !shown().thread()->isWorking(); }, longest));
        QCOMPARE(variable(u"x"), QString("1"));
    }

    void waitingServesTheWorker() {
        debug("x = FORMOPEN(\"\");\na = 1;\n");
        shown().thread()->fromConsole(u"STEP");
        // By the turn alone, without the console's look at stops. The worker must have it first.
        QVERIFY(workerHasTheTurn());
        const localTurn::Hold turn;
        QCOMPARE(variable(u"x"), QString("55"));
        QCOMPARE(output_.count("window"), linesOfAWindow);
    }
};

QTEST_MAIN(languageTurn)
#include "languageTurn.moc"
