// Formulas of a grid: the scope they are computed in, faults, what they may do to the grid itself.
#include <QClipboard>
#include <QMessageBox>
#include <QPointer>

#include <functional>

#include "gridTest.h"
#include "localInterpretatorUTF8/library/localExtension.h"
#include "localInterpretatorUTF8/program/localProgram.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

using gridTest::column;
using gridTest::settle;

namespace {

// Stands in for a function of a program that does something to the window.
std::function<void()> formulaWork;

bool runFormulaWork(localCall& call) {
    if (formulaWork) {
        formulaWork();
    }
    return call.give(7.0);
}

constexpr localExtensionFunction standIns[] = {{u"FORMOPEN", runFormulaWork}};

}  // namespace

class gridFormulas : public gridTest::test {
    Q_OBJECT

    std::unique_ptr<gridTest::anyGrid> formulas(localContextUTF8* above, const std::u16string& a,
                                                const std::u16string& b = {}) {
        auto shown = made<gridTest::anyGrid>(above);
        add(*shown, column("A", 100, u"A", a));
        add(*shown, column("B", 100, u"B", b));
        shown->resize(400, 5 * 21);
        gridTest::show(*shown);
        return shown;
    }
    static void setVariable(localContextUTF8& scope, const char16_t* name, double value) {
        const localTurn::Hold turn;
        (scope.varFind(name) == nullptr ? scope.varDeclare(name) : *scope.varFind(name))
            .value->setVal(value);
    }
    // The text that stands in a cell on the screen.
    static QString copied(gridTest::anyGrid& shown, unsigned row, unsigned col) {
        shown.setCurrentCell(row, col);
        QApplication::clipboard()->clear();
        QTest::keyClick(&shown, 'c', Qt::ControlModifier);
        settle();
        return QApplication::clipboard()->text();
    }

private slots:
    void initTestCase() {
        test::initTestCase();
        const localTurn::Hold turn;
        localExtensionAdd({.name = u"stand-ins", .functions = standIns});
    }
    void cleanup() {
        formulaWork = nullptr;
        test::cleanup();
    }

    void eachRowIsComputed() {
        setVariable(*scope_, u"K", 100);
        auto shown = formulas(scope_.get(), u"ROWNUMBER*K", u"A+COLUMNNUMBER");
        QCOMPARE(text(*shown, 1, 1), QString("100"));
        QCOMPARE(text(*shown, 1, 2), QString("102"));
        QCOMPARE(text(*shown, 4, 2), QString("402"));
        shown->scrollRowDown();
        QCOMPARE(text(*shown, 4, 2), QString("502"));
        QCOMPARE(copied(*shown, 2, 1), QString("300"));
    }

    // A column with an id alone shows its variable, one with a formula alone its value, and one
    // with neither its place.
    void columnsOfAllKinds() {
        auto shown = made<gridTest::anyGrid>(scope_.get());
        add(*shown, column("a", 50, u"first"));
        add(*shown, column("b", 50, {}, u"ROWNUMBER+COLUMNNUMBER*1000"));
        add(*shown, column("c", 50));
        QCOMPARE(text(*shown, 3, 1), QString("1"));
        QCOMPARE(text(*shown, 3, 2), QString("2003"));
        QCOMPARE(text(*shown, 3, 3).simplified(), QString("3- 3"));
        QVERIFY(text(*shown, 3, 3).startsWith(' '));
        QCOMPARE(text(*shown, 3, 4), QString(" error "));
    }

    void faultIsToldOnceAndTheNextColumnGoesOn() {
        const outputCapture output;
        auto shown = formulas(scope_.get(), u"нетТакого", u"ROWNUMBER");
        const QString first = output.text().section('\n', 0, 0);
        QVERIFY2(QRegularExpression(" \\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d func: ")
                     .match(first)
                     .hasMatch(),
                 qPrintable(first));
        const auto lines = [&] { return output.text().count(" func: localVclGrid200123"); };
        // Rows 1 to 4 are in sight, and the pixel behind them.
        const auto before = lines();
        QVERIFY2(before == 4 || before == 5, qPrintable(output.text()));
        QCOMPARE(text(*shown, 2, 1), QString());
        QCOMPARE(text(*shown, 2, 2), QString("2"));
        shown->refresh();
        settle();
        shown->refresh();
        settle();
        QCOMPARE(lines(), before);
        shown->scrollRowDown();
        settle();
        QCOMPARE(lines(), before + 1);
    }

    void shownTextsFollowTheVariables() {
        setVariable(*scope_, u"K", 1);
        auto shown = formulas(scope_.get(), u"K");
        const QRect cell = shown->cellRectangle(2, 1);
        const QImage before = shown->grab(cell).toImage();
        setVariable(*scope_, u"K", 8888);
        // Whatever paints the grid makes it look.
        shown->update();
        QTRY_VERIFY(shown->grab(cell).toImage() != before);
        // And it comes to rest then.
        settle();
        shown->painted = {};
        settle();
        QVERIFY(shown->painted.isEmpty());
    }

    // --- Scopes that end

    void scopeAboveEnds() {
        setVariable(*localContextUTF8::globalContext, u"G", 5);
        setVariable(*scope_, u"K", 1);
        auto shown = formulas(scope_.get(), u"K", u"G+ROWNUMBER");
        QCOMPARE(text(*shown, 2, 1), QString("1"));
        {
            const localTurn::Hold turn;
            scope_.reset();
        }
        shown->refresh();
        settle();
        QCOMPARE(text(*shown, 2, 1), QString());
        QCOMPARE(text(*shown, 2, 2), QString("7"));
        const localTurn::Hold turn;
        QCOMPARE(shown->context()->parent(), localContextUTF8::globalContext);
    }

    void anotherScopeAtTheSameAddress() {
        alignas(localContextUTF8) unsigned char memory[sizeof(localContextUTF8)];
        const auto makeThere = [&](double value) {
            const localTurn::Hold turn;
            auto* const scope = new (memory) localContextUTF8(scope_.get());
            setVariable(*scope, u"K", value);
            return scope;
        };
        const auto end = [](localContextUTF8* scope) {
            const localTurn::Hold turn;
            scope->~localContextUTF8();
        };
        localContextUTF8* scope = makeThere(1);
        auto shown = formulas(scope, u"K");
        QCOMPARE(text(*shown, 2, 1), QString("1"));
        end(scope);
        scope = makeThere(2);
        QCOMPARE(text(*shown, 2, 1), QString());
        end(scope);
    }

    void scopeFurtherUpEnds() {
        std::unique_ptr<localContextUTF8> inner;
        {
            const localTurn::Hold turn;
            inner = std::make_unique<localContextUTF8>(scope_.get());
        }
        setVariable(*scope_, u"K", 3);
        auto shown = formulas(inner.get(), u"K");
        QCOMPARE(text(*shown, 2, 1), QString("3"));
        const localTurn::Hold turn;
        scope_.reset();
        QCOMPARE(text(*shown, 2, 1), QString());
        inner.reset();
        QCOMPARE(text(*shown, 2, 1), QString());
    }

    void columnsAndLayoutsBehindTheEndOfTheScope() {
        auto shown = formulas(scope_.get(), u"ROWNUMBER");
        const localTurn::Hold turn;
        scope_.reset();
        shown->addColumn(column("C", 50, u"C", u"ROWNUMBER+1"));
        QCOMPARE(shown->cellText(2, 3), QString("3"));
        const localValueDescription layout = shown->layoutAsValueListGet();
        QVERIFY(shown->layoutReconfigureByJson(layout));
        QCOMPARE(shown->cellText(2, 1), QString("2"));
        QCOMPARE(shown->cellText(2, 3), QString("3"));
    }

    void formulaThatEndsTheScopeAbove() {
        const outputCapture output;
        auto shown = formulas(scope_.get(), u"FORMOPEN(\"\")", u"ROWNUMBER+1");
        formulaWork = [&] { scope_.reset(); };
        shown->refresh();
        settle();
        QVERIFY(scope_ == nullptr);
        QCOMPARE(text(*shown, 2, 2), QString("3"));
    }

    // --- Ends

    void slotsAndScopesComeBack() {
        const auto counts = [] {
            const localTurn::Hold turn;
            return std::pair(localMemoryManager::manager->getUsedCount(),
                             localContextUTF8::counterStaticTotal);
        };
        const auto before = counts();
        auto shown = formulas(scope_.get(), u"ROWNUMBER", u"A*2");
        QVERIFY(counts() > before);
        shown.reset();
        QCOMPARE(counts(), before);
    }

    // --- Formulas that do something to the window

    void formulaThatEndsTheGrid() {
        QPointer<gridTest::anyGrid> shown =
            formulas(scope_.get(), u"FORMOPEN(\"\")", u"A+1").release();
        QCOMPARE(text(*shown, 1, 2), QString("8"));
        formulaWork = [&] { delete shown.data(); };
        shown->refresh();
        settle();
        QVERIFY(shown.isNull());
    }

    void cellsFormulaThatEndsTheGrid() {
        QPointer<gridTest::anyGrid> shown = made<gridTest::anyGrid>(scope_.get()).release();
        add(*shown, column("a", 50, {}, u"FORMOPEN(\"\")"));
        shown->resize(200, 100);
        gridTest::show(*shown);
        formulaWork = [&] { delete shown.data(); };
        QTest::keyClick(shown.data(), Qt::Key_Down);
        settle();
        QVERIFY(shown.isNull());
    }

    void copyThatEndsTheGrid() {
        QPointer<gridTest::anyGrid> shown =
            formulas(scope_.get(), u"FORMOPEN(\"\")", u"A+1").release();
        formulaWork = [&] { delete shown.data(); };
        QTest::keyClick(shown.data(), 'c', Qt::ControlModifier);
        QVERIFY(!shown.isNull());
        settle();
        QVERIFY(shown.isNull());
    }

    void formulaThatChangesTheLayout() {
        auto shown = formulas(scope_.get(), u"FORMOPEN(\"\")", u"A+1");
        formulaWork = [&] {
            formulaWork = nullptr;
            localValueDescription layout;
            layout.setVal(
                localText(u"{\"grid\":{\"columns\":[{\"id\":\"N\",\"formula\":\"ROWNUMBER\"}]}}"));
            QVERIFY(shown->layoutReconfigureByJson(layout));
        };
        shown->refresh();
        settle();
        QCOMPARE(shown->columnsCount(), std::size_t(1));
        QCOMPARE(text(*shown, 3, 1), QString("3"));
    }

    // A box of a formula serves events, and the grid is painted behind it.
    void formulaThatOpensABox() {
        auto shown = formulas(scope_.get(), u"FORMOPEN(\"\")", u"A+1");
        int opened = 0;
        formulaWork = [&] {
            if (opened++ == 0) {
                shown->refresh();
                settle();
                shown->repaint();
                settle();
            }
        };
        shown->refresh();
        settle();
        // Once for each row in sight, again for the refresh in between, and nowhere else.
        QVERIFY2(opened <= 3 * 5, qPrintable(QString::number(opened)));
        QCOMPARE(text(*shown, 2, 2), QString("8"));
    }

    // The same while cells are copied.
    void boxWhileCellsAreCopied() {
        setVariable(*scope_, u"K", 1);
        auto shown = formulas(scope_.get(), u"K+0*FORMOPEN(\"\")");
        formulaWork = [&] {
            formulaWork = nullptr;
            shown->refresh();
            settle();
        };
        QCOMPARE(copied(*shown, 2, 1), QString("1"));
        const QRect cell = shown->cellRectangle(3, 1);
        const QImage before = shown->grab(cell).toImage();
        setVariable(*scope_, u"K", 7777);
        shown->refresh();
        settle();
        QVERIFY(shown->grab(cell).toImage() != before);
    }
};

QTEST_MAIN(gridFormulas)
#include "gridFormulas.moc"
