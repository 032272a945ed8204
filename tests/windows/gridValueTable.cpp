// The live grid of value tables: what it shows, its layout, and tables that change under it.
#include <QDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include "consoleTest.h"
#include "gridTest.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"
#include "localVCL/grid/localVclTestWidgetValueTable200617.h"
#include "localVCL/window/localVclWindow.h"

using consoleTest::json;
using gridTest::column;
using gridTest::keys;
using gridTest::settle;
using Cursor = std::pair<unsigned, unsigned>;
using liveGrid = gridTest::watched<localVclTestWidgetValueTable200617>;

namespace {

constexpr int rowStep = 21;

localValueDescription text(const std::u16string& text) {
    localValueDescription value;
    value.setVal(localText(text));
    return value;
}

// Goods: name, price, amount; so many rows.
localValueDescription goods(int rows) {
    auto* const table = new localValueTable;
    localValueDescription value;
    value.objectBind(table, localValueTable::classDeclaration());
    table->columnAdd(u"Имя");
    table->columnAdd(u"Цена");
    table->columnAdd(u"Количество");
    for (int row = 0; row < rows; ++row) {
        table->rowAdd();
        const auto place = static_cast<std::size_t>(row);
        const QString name = QString("Товар %1").arg(row + 1);
        table->cell(place, 0).setVal(localText(name.toStdU16String()));
        table->cell(place, 1).setVal(10.0 * (row + 1));
        table->cell(place, 2).setVal(row % 7);
    }
    return value;
}

}  // namespace

class gridValueTable : public consoleTest::test {
    Q_OBJECT

    std::unique_ptr<localValueDescription> table_;
    std::unique_ptr<localContextUTF8> scope_;

    localValueTable& table() { return *localValueTable::of(*table_); }

    // A grid over a table of goods with all kinds of columns.
    std::unique_ptr<liveGrid> over(int rows, int rowsInSight) {
        const localTurn::Hold turn;
        scope_ = std::make_unique<localContextUTF8>();
        table_ = std::make_unique<localValueDescription>(goods(rows));
        auto shown = std::make_unique<liveGrid>(*table_, scope_.get());
        shown->addColumn(column("Имя", 100, u"имя"));
        shown->addColumn(column("Цена", 60, u"Цена"));
        shown->addColumn(column("Сумма", 80, u"Сумма", u"Цена*Количество"));
        shown->addColumn(column("НДС", 60, {}, u"Сумма*0.2"));
        shown->columns[1]->alignment = shown->columns[2]->alignment = Qt::AlignRight;
        shown->resize(420, (rowsInSight + 1) * rowStep);
        gridTest::show(*shown);
        return shown;
    }
    // A grid over a variable of the console, in a window as the program shows it.
    QPointer<liveGrid> ofVariable(const QByteArray& layout) {
        const localTurn::Hold turn;
        auto* const shown = new liveGrid(localValueDescription(), console_->context());
        shown->layoutReconfigureByJson(text(QString::fromUtf8(layout).toStdU16String()));
        shown->resize(400, 6 * rowStep);
        localVclWindowParameters parameters;
        parameters.title = "Таблица";
        window_ = localVclWindowShow(shown, parameters);
        settle();
        return shown;
    }
    QPointer<QWidget> window_;

    static QString shownText(liveGrid& shown, unsigned row, unsigned col) {
        const localTurn::Hold turn;
        return shown.cellText(row, col);
    }
    // What stands on the screen, as one who copies it finds it.
    static QString onScreen(liveGrid& shown) {
        const QImage image = shown.grab().toImage();
        QString rows;
        for (unsigned row = 1; row < shown.visibleRows(); ++row) {
            const QRect cell = shown.cellRectangle(row, 1).adjusted(2, 2, -2, -2);
            rows += gridTest::hasInk(image, cell) ? '1' : '0';
        }
        return rows;
    }
    static std::int64_t tables() {
        const localTurn::Hold turn;
        return localValueTable::counterStaticTotal;
    }

    const QByteArray layout_ = json("{'grid':{'columns':[{'id':'A','caption':'Первая','width':80}],"
                                    "'dataSource':{'varName':'t'}}}");

protected slots:
    void cleanup() {
        delete window_.data();
        {
            const localTurn::Hold turn;
            scope_.reset();
            table_.reset();
        }
        test::cleanup();
    }

private slots:
    // --- Texts

    void cellsAreTheTables() {
        auto shown = over(5, 8);
        QCOMPARE(shownText(*shown, 3, 0), QString("3"));
        QCOMPARE(shownText(*shown, 3, 1), QString("Товар 3"));
        QCOMPARE(shownText(*shown, 3, 2), QString("30"));
        QCOMPARE(shownText(*shown, 3, 3), QString("60"));
        QCOMPARE(shownText(*shown, 3, 4), QString("12"));
        QCOMPARE(shownText(*shown, 6, 1), QString());
        QCOMPARE(shownText(*shown, 6, 0), QString());
        QCOMPARE(onScreen(*shown), QString("11111000"));
        QCOMPARE(shown->fixedColWidth, 25);
        saveScreenshot(*shown, "gridValueTable");
    }

    void columnsThatCannotBeShown() {
        auto shown = over(5, 8);
        const localTurn::Hold turn;
        shown->addColumn(column("x", 50));
        shown->addColumn(column("y", 50, {}, u"нетТакого+1"));
        shown->addColumn(column("z", 50, u"z"));
        shown->columns.back()->id = u"another";
        QCOMPARE(shown->cellText(3, 5).simplified(), QString("50- 3"));
        QCOMPARE(shown->cellText(3, 6), localVclQString(statusMessage(10)));
        QCOMPARE(shown->cellText(3, 7), QString("unknown var!"));
    }

    void rowUnderTheCursorIsTheTables() {
        auto shown = over(5, 8);
        QSignalSpy changes(shown.get(), &liveGrid::dataSousceIdChanged);
        keys(*shown, {Qt::Key_Down, Qt::Key_Down});
        QCOMPARE(changes.count(), 2);
        QCOMPARE(shown->dataSousceId(), 3);
        {
            const localTurn::Hold turn;
            QCOMPARE(table().rowActual, 3U);
        }
        shown->refresh();
        settle();
        const localTurn::Hold turn;
        QCOMPARE(table().rowActual, 3U);
    }

    void columnsOfOneNameShowTheFirst() {
        auto shown = over(2, 4);
        const localTurn::Hold turn;
        table().columnAdd(u"имя");
        table().cell(1, 3).setVal(localText(u"другое"));
        QCOMPARE(shown->cellText(2, 1), QString("Товар 2"));
    }

    void millionRows() {
        auto shown = over(1000000, 20);
        keys(*shown, {Qt::Key_End}, Qt::ControlModifier);
        settle();
        QCOMPARE(shownText(*shown, 20, 1), QString("Товар 1000000"));
        QCOMPARE(shown->dataSousceId(), 1000000);
        keys(*shown, {Qt::Key_Down});
        QCOMPARE(shown->firstRow, 1000000 - 20);
        // Its number has room in front of it.
        QVERIFY(shown->fixedColWidth > shown->fontMetrics().horizontalAdvance("1000000"));
        QCOMPARE(shown->columns[0]->headButton->x(), shown->fixedColWidth);
        saveScreenshot(*shown, "gridMillion");
    }

    // --- The mouse

    void rightButtonOpensTheLayout() {
        auto shown = over(5, 8);
        const outputCapture output;
        QString text;
        const dialogAnswer answer([&](QWidget* dialog) {
            text =
                dialog->windowTitle() + "|" + dialog->findChild<QPlainTextEdit*>()->toPlainText();
            saveScreenshot(*dialog, "gridLayout");
            static_cast<QDialog*>(dialog)->reject();
        });
        QTest::mouseClick(shown.get(), Qt::RightButton, {}, {100, 60});
        QTRY_VERIFY(answer.given());
        QVERIFY2(text.startsWith("Grid Layout|{"), qPrintable(text));
        QVERIFY(text.contains("\"formula\": \"Цена*Количество\""));
        QVERIFY(output.text().startsWith("this->dataSousceId=[ 1]  func: mousePressEvent"));
        QCOMPARE(shown->columnsCount(), std::size_t(4));
    }

    void leftButtonPastTheEndDoesNothing() {
        auto shown = over(3, 8);
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {60, 2 * rowStep + 5});
        QCOMPARE(shown->cursor(), Cursor(2, 1));
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {160, 6 * rowStep + 5});
        QCOMPARE(shown->cursor(), Cursor(2, 1));
    }

    void keysAreListedByTheMenuKey() {
        auto shown = over(3, 8);
        QContextMenuEvent mouse(QContextMenuEvent::Mouse, {60, 60},
                                shown->mapToGlobal(QPoint(60, 60)));
        QApplication::sendEvent(shown.get(), &mouse);
        QVERIFY(shown->findChild<QMenu*>() == nullptr);
        QContextMenuEvent keyboard(QContextMenuEvent::Keyboard, {60, 60},
                                   shown->mapToGlobal(QPoint(60, 60)));
        QApplication::sendEvent(shown.get(), &keyboard);
        auto* const menu = shown->findChild<QMenu*>();
        QVERIFY(menu != nullptr);
        menu->close();
    }

    // --- The layout

    void layoutComesBackFromItsText() {
        auto shown = over(3, 8);
        const localTurn::Hold turn;
        shown->columns[0]->caption = "кавычки \" и \\ и [скобки] {}";
        shown->columns[0]->description = "две\nстроки";
        localValueDescription layout = shown->layoutAsValueListGet();
        QVERIFY(shown->layoutReconfigureByJson(layout));
        QCOMPARE(shown->columns[0]->caption, QString("кавычки \" и \\ и [скобки] {}"));
        QCOMPARE(shown->columns[0]->description, QString("две\nстроки"));
        QCOMPARE(shown->columns[1]->alignment, int(Qt::AlignRight));
        QCOMPARE(shown->columns[2]->formula, u"Цена*Количество");
        QCOMPARE(shown->columns[2]->width, 80);
        QCOMPARE(shown->cursor(), Cursor(0, 0));
        QCOMPARE(shown->cellText(3, 3), QString("60"));
        // An empty text takes the layout as it is.
        QVERIFY(shown->layoutReconfigureByJson(text(u"")));
        QCOMPARE(shown->columnsCount(), std::size_t(4));
    }

    void layoutIsReadFromTypedJson() {
        auto shown = over(3, 8);
        const localTurn::Hold turn;
        const localValueDescription layout = shown->layoutAsValueListGet();
        const localText typed = valueListToJson(*localValueList::of(layout));
        shown->columns[0]->caption = "x";
        QVERIFY(shown->layoutReconfigureByJson(text(typed.string())));
        QCOMPARE(shown->columns[0]->caption, QString("Имя"));
        QCOMPARE(shown->columns[2]->width, 80);
    }

    void layoutWithoutNumbers() {
        auto shown = over(3, 8);
        const localTurn::Hold turn;
        QVERIFY(shown->layoutReconfigureByJson(
            text(u"{\"grid\":{\"columns\":[{\"id\":\"ЦЕНА\"},{\"width\":12.6,\"flags\":4},"
                 u"{\"width\":-5},5]}}")));
        QCOMPARE(shown->columnsCount(), std::size_t(3));
        QCOMPARE(shown->columns[0]->width, 100);
        QCOMPARE(shown->columns[0]->alignment, 1);
        QCOMPARE(shown->columns[1]->width, 13);
        QCOMPARE(shown->columns[1]->alignment, 4);
        QCOMPARE(shown->columns[2]->width, 1);
    }

    void whatIsNoLayoutChangesNothing_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("no JSON") << "columns";
        QTest::newRow("a list") << "[1, 2]";
        QTest::newRow("no grid") << "{\"columns\": []}";
        QTest::newRow("grid that is a text") << "{\"grid\": \"x\"}";
        QTest::newRow("no end") << "{\"grid\": {";
    }
    void whatIsNoLayoutChangesNothing() {
        QFETCH(QString, text);
        auto shown = over(3, 8);
        const outputCapture output;
        const localTurn::Hold turn;
        QVERIFY(!shown->layoutReconfigureByJson(::text(text.toStdU16String())));
        QVERIFY(!shown->layoutReconfigureByJson(localValueDescription()));
        QCOMPARE(shown->columnsCount(), std::size_t(4));
        QCOMPARE(shown->cursor(), Cursor(1, 1));
    }

    void dialogTakesAnotherLayout() {
        auto shown = over(3, 8);
        const dialogAnswer answer([&](QWidget* dialog) {
            auto* const edit = dialog->findChild<QPlainTextEdit*>();
            edit->setPlainText("{\"grid\":{\"columns\":[{\"id\":\"ЦЕНА\",\"caption\":\"P\"}]}}");
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok),
                              Qt::LeftButton);
        });
        keys(*shown, {Qt::Key_F12});
        QTRY_VERIFY(answer.given());
        QCOMPARE(shown->columnsCount(), std::size_t(1));
        QCOMPARE(shownText(*shown, 2, 1), QString("20"));
        shown->activateWindow();
        QTRY_COMPARE(QApplication::focusWidget(), shown.get());
        QVERIFY(host_.reports.empty());
    }

    void dialogTellsOfABadLayoutAndKeepsTheText() {
        auto shown = over(3, 8);
        const outputCapture output;
        const dialogAnswer answer([&](QWidget* dialog) {
            auto* const edit = dialog->findChild<QPlainTextEdit*>();
            edit->setPlainText("{\"grid\":");
            static_cast<QDialog*>(dialog)->accept();
            QVERIFY(dialog->isVisible());
            QCOMPARE(edit->toPlainText(), QString("{\"grid\":"));
            static_cast<QDialog*>(dialog)->reject();
        });
        keys(*shown, {Qt::Key_F12});
        QTRY_VERIFY(answer.given());
        QCOMPARE(host_.reports.size(), std::size_t(1));
        QCOMPARE(host_.reports[0].text, u"Error!");
        QCOMPARE(shown->columnsCount(), std::size_t(4));
    }

    void gridGoesWithItsDialogOpen() {
        auto shown = over(3, 8);
        keys(*shown, {Qt::Key_F12});
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        shown.reset();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void layoutOfAVariable() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.COLUMNADD(\"\")");
        enter("t.ROWADD()");
        enter("t.VALUESET(1,1,\"abc\")");
        enter("t.VALUESET(1,2,15)");
        auto shown = ofVariable(json("{'grid':{'dataSource':{'varName':'t'}}}"));
        QCOMPARE(shown->variableName(), u"t");
        QCOMPARE(shown->columnsCount(), std::size_t(2));
        QCOMPARE(shown->columns[0]->caption, QString("A"));
        QCOMPARE(shown->columns[0]->width, 100);
        QCOMPARE(shown->columns[1]->id, u"_____column_2");
        QCOMPARE(shownText(*shown, 1, 1), QString("abc"));
        QCOMPARE(shownText(*shown, 1, 2), QString("15"));
        const localTurn::Hold turn;
        const localValueDescription layout = shown->layoutAsValueListGet();
        QVERIFY(shown->layoutReconfigureByJson(layout));
        QCOMPARE(shown->variableName(), u"t");
        QCOMPARE(shown->cellText(1, 2), QString("15"));
    }

    void variableWithoutATableGetsOne() {
        start();
        auto shown = ofVariable(json("{'grid':{'dataSource':{'varName':'t'}}}"));
        QCOMPARE(shown->columnsCount(), std::size_t(1));
        QCOMPARE(shown->columns[0]->caption, QString("КОЛОНКА1"));
        QCOMPARE(outputOf("? t.COLUMNSCOUNT()"), QStringList("1"));
        QCOMPARE(outputOf("? t.COLUMNNAMEGET(1)"), QStringList("КОЛОНКА1"));
        enter("t.ROWADD()");
        enter("t.VALUESET(1,1,\"new\")");
        QCOMPARE(shownText(*shown, 1, 1), QString("new"));
        saveScreenshot(*shown->window(), "gridWindow");
    }

    // --- Tables that change under their grid

    void programChangesTheTable() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        auto shown = ofVariable(layout_);
        QCOMPARE(onScreen(*shown), QString("00000"));
        enter("t.ROWADD()");
        enter("t.ROWADD()");
        shown->update();
        QTRY_COMPARE(onScreen(*shown), QString("11000"));
    }

    void tableIsCleared() {
        auto shown = over(50, 8);
        keys(*shown, {Qt::Key_End}, Qt::ControlModifier);
        settle();
        {
            const localTurn::Hold turn;
            table().clear();
        }
        shown->refresh();
        settle();
        QCOMPARE(onScreen(*shown), QString("00000000"));
        QCOMPARE(shown->firstRow, 0);
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        keys(*shown, {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Up});
        keys(*shown, {Qt::Key_C, Qt::Key_End}, Qt::ControlModifier);
        settle();
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->dataSousceId(), 0);
    }

    void tableBecomesShorter() {
        auto shown = over(50, 8);
        keys(*shown, {Qt::Key_End}, Qt::ControlModifier);
        settle();
        {
            const localTurn::Hold turn;
            table().cut(45, 3);
        }
        shown->refresh();
        settle();
        QCOMPARE(shown->cursor(), Cursor(3, 1));
        QCOMPARE(shownText(*shown, 3, 1), QString("Товар 45"));
        {
            const localTurn::Hold turn;
            table().cut(4, 2);
        }
        shown->refresh();
        settle();
        QCOMPARE(shown->firstRow, 0);
        QCOMPARE(shown->cursor(), Cursor(4, 1));
        QCOMPARE(shown->dataSousceId(), 4);
    }

    void tableIsReplacedInItsVariable() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.ROWADD()");
        auto shown = ofVariable(layout_);
        const auto before = tables();
        enter("t=5");
        QCOMPARE(tables(), before - 1);
        shown->refresh();
        settle();
        QCOMPARE(onScreen(*shown), QString("00000"));
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.ROWADD()");
        enter("t.ROWADD()");
        shown->refresh();
        settle();
        QCOMPARE(onScreen(*shown), QString("11000"));
    }

    void clearMemory() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.ROWADD()");
        auto shown = ofVariable(layout_);
        enter("CLEAR MEMORY");
        shown->refresh();
        settle();
        QCOMPARE(onScreen(*shown), QString("00000"));
        keys(*shown, {Qt::Key_Down, Qt::Key_End});
        settle();
    }

    void quit() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.ROWADD()");
        auto shown = ofVariable(layout_);
        enter("QUIT");
        settle();
        console_.reset();
        if (shown) {
            shown->refresh();
            settle();
            QCOMPARE(onScreen(*shown), QString("00000"));
        }
    }

    void formulaThatReplacesItsTable() {
        start();
        enter("t=CREATEOBJECT(\"VALUETABLE\")");
        enter("t.COLUMNADD(\"A\")");
        enter("t.ROWADD()");
        enter("t.ROWADD()");
        consoleTest::write("f.prg", "FUNCTION drop()\nt=1;\nRETURN 3;\nENDFUNCTION;\n");
        enter("DO f.prg");
        auto shown =
            ofVariable(json("{'grid':{'columns':[{'id':'X','formula':'drop()'},{'id':'A'}],"
                            "'dataSource':{'varName':'t'}}}"));
        QCOMPARE(onScreen(*shown).left(2), QString("10"));
        shown->refresh();
        settle();
        QCOMPARE(onScreen(*shown), QString("00000"));
    }

    // The grid keeps a table that was given to it, and lets go of it at its end.
    void tableGivenIsKept() {
        auto shown = over(3, 8);
        const auto before = tables();
        {
            const localTurn::Hold turn;
            table_.reset();
        }
        QCOMPARE(tables(), before);
        shown->refresh();
        settle();
        QCOMPARE(shownText(*shown, 2, 1), QString("Товар 2"));
        shown.reset();
        QCOMPARE(tables(), before - 1);
    }

    // Objects in cells are not kept by the grid's variables.
    void objectsOfCellsAreLetGo() {
        auto shown = over(2, 8);
        const auto lists = [] {
            const localTurn::Hold turn;
            return localValueList::counterStaticTotal;
        };
        const auto before = lists();
        for (const bool isAsked : {false, true}) {
            {
                const localTurn::Hold turn;
                table().cell(0, 0).objectBind(new localValueList,
                                              localValueList::classDeclaration());
            }
            shown->refresh();
            settle();
            if (isAsked) {
                QVERIFY(shownText(*shown, 1, 1).startsWith("Список значений"));
            }
            {
                const localTurn::Hold turn;
                table().cell(0, 0).reset();
            }
            QCOMPARE(lists(), before);
        }
    }
};

QTEST_MAIN(gridValueTable)
#include "gridValueTable.moc"
