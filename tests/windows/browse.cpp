// A browse of a table: keys, the mouse, sizes, finding, choosing, and windows that go in between.
#include "browseTest.h"

#include <QClipboard>
#include <QProcess>
#include <QWheelEvent>

#include <random>

#include "localVCL/window/localVclWindow.h"

using Browse = localDbtBrowseWidget200123;
using Purpose = localDbtBrowsePurpose;

class browse : public browseTest {
    Q_OBJECT

private:
    // Turns the wheel down by so many notches of one line.
    static void wheel(QWidget& widget, int notches) {
        QApplication::setWheelScrollLines(1);
        QWheelEvent event(QPointF(50, 50), widget.mapToGlobal(QPointF(50, 50)), {},
                          QPoint(0, -120 * notches), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }
    static QString idUnderCursor(const Browse& grid) { return QString::number(grid.getId()); }

private slots:
    void itShowsTheBufferInItsColumns() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        QCOMPARE(rowTexts(*grid, 1), QStringList({"41", "000001", "Гвозди 1", "1.5"}));
        QCOMPARE(rowTexts(*grid, 19), QStringList({"59", "000019", "Гвозди 19", "28.5"}));
        QCOMPARE(grid->cellText(1, 0), QString());
        QVERIFY(output_.text().contains(" dataBufer->size()= 256"));
        QVERIFY(saveScreenshot(*grid, "browse"));
    }

    void aColumnThatTheBufferLacksSaysSo() {
        makeGoods(3);
        auto columns = goodsColumns();
        columns[1]->dataBuferColumn = 6;
        Browse grid(goods(u"Ref03_CODE"), std::move(columns), Purpose::look);
        setRows(grid, 20);
        QCOMPARE(grid.cellText(1, 2), QString(" illegal column!"));
        QCOMPARE(grid.cellText(9, 1), QString());
    }

    void withoutColumnsEachExpressionIsOne() {
        makeGoods(3);
        const Browse grid(goods(u"Ref03_CODE"), {}, Purpose::look);
        QCOMPARE(grid.columnsCount(), 6U);
        QCOMPARE(grid.column(4).width, 250);
        QCOMPARE(grid.column(1).width, 50);
        QCOMPARE(grid.column(2).dataBuferColumn, 2);
        QCOMPARE(grid.idxNameOfColumn(0), std::u16string(u"Ref03_ID"));
        QCOMPARE(grid.idxNameOfColumn(3), std::u16string(u"Ref03_CODE"));
        QCOMPARE(grid.idxNameOfColumn(4), std::u16string(u"Ref03_DESCR"));
        QCOMPARE(grid.idxNameOfColumn(5), std::u16string());
        QCOMPARE(grid.idxNameOfColumn(6), std::u16string());
    }

    void aTableAloneHasItsFieldsAsColumns() {
        makeGoods(3);
        sql("create table \"a b\" (id INTEGER PRIMARY KEY, \"a-b\" CHAR(9),"
            " \"в \"\"кавычках\" INT)");
        sql("insert into \"a b\" values (7, 'x', 5)");
        sql("create index ab on \"a b\"(\"a-b\")");
        Browse grid(connectionName, u"\"a b\"", Purpose::look);
        setRows(grid, 5);
        QCOMPARE(grid.column(2).caption, QString("в \"кавычках"));
        QVERIFY(host_.calls.empty());
        QCOMPARE(rowTexts(grid, 1), QStringList({"7", "x", "5"}));
        QCOMPARE(grid.getId(), 7);
    }

    // --- Keys

    void aShortTableEndsWhereItEnds() {
        makeGoods(0);
        sql("insert into Ref03 (code) values ('1'),('2'),('3'),('4'),('5'),('6'),('7'),('8'),('9'),"
            "('99')");
        const auto grid = shown<Browse>(20);
        for (int i = 0; i < 9; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Down);
        }
        QCOMPARE(grid->currentRow(), 10U);
        QCOMPARE(host_.beeps, 0);
        QTest::keyClick(grid.get(), Qt::Key_Down);
        QCOMPARE(host_.beeps, 2);
        QCOMPARE(grid->currentRow(), 10U);
        QCOMPARE(grid->mRec1(), 0U);
        QCOMPARE(idUnderCursor(*grid), QString("10"));
        QTest::keyClick(grid.get(), Qt::Key_PageDown);
        QCOMPARE(idUnderCursor(*grid), QString("10"));
    }

    void upAtTheFirstRowMovesNothing() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        QTest::keyClick(grid.get(), Qt::Key_Up);
        QCOMPARE(host_.beeps, 1);
        QCOMPARE(grid->mRec1(), 0U);
        QCOMPARE(idUnderCursor(*grid), QString("41"));
    }

    void upFromTheBuffersFirstRowReadsAround() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20, u"Ref03_ID");
        while (grid->getId() < 519) {
            QTest::keyClick(grid.get(), Qt::Key_Down);
        }
        QTest::keyClick(grid.get(), Qt::Key_PageUp);
        while (grid->mRec1() > 0) {
            QTest::keyClick(grid.get(), Qt::Key_Up);
        }
        const qint64 before = grid->getId();
        QTest::keyClick(grid.get(), Qt::Key_Up);
        QCOMPARE(grid->getId(), before - 1);
        QCOMPARE(grid->mRec1(), 127U);
        QCOMPARE(grid->currentRow(), 1U);
    }

    void anEmptyTableTakesAllKeys() {
        makeGoods(0);
        const auto grid = shown<Browse>(20);
        for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp,
                               Qt::Key_Right, Qt::Key_Return, Qt::Key_F4, Qt::Key_A}) {
            QTest::keyClick(grid.get(), key);
            QTest::keyClick(grid.get(), key, Qt::ControlModifier);
        }
        QCOMPARE(grid->currentRow(), 0U);
        QCOMPARE(grid->getId(), 0);
        sql("insert into Ref03 (code) values ('1')");
        QTest::keyClick(grid.get(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(grid->currentRow(), 1U);
        QCOMPARE(grid->getId(), 1);
        QVERIFY(host_.calls.empty());
    }

    void aTableWithoutIndexesStaysEmpty() {
        makeGoods(3);
        sql("create table Bare (id INTEGER PRIMARY KEY, a INT)");
        Browse grid(connectionName, u"Bare", Purpose::look);
        QCOMPARE(host_.calls.size(), 1U);
        setRows(grid, 20);
        for (const auto key :
             {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_A}) {
            QTest::keyClick(&grid, key);
        }
        wheel(grid, 3);
        QCOMPARE(host_.calls.size(), 1U);
    }

    void theEndsAreOneKeyAway() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        QTest::keyClick(grid.get(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(rowTexts(*grid, 19)[1], QString("П000040"));
        QCOMPARE(grid->currentRow(), 19U);
        QCOMPARE(host_.beeps, 1);
        QTest::keyClick(grid.get(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(idUnderCursor(*grid), QString("41"));
        QCOMPARE(grid->currentRow(), 1U);
    }

    void randomKeysStayInTheOrderOfPlainSql() {
        makeGoods(900);
        const auto grid = shown<Browse>(17);
        QStringList order = rows("select id from Ref03 order by code,id");
        std::mt19937 random(7);
        const auto upTo = [&](int most) {
            return std::uniform_int_distribution<int>(0, most)(random);
        };
        qsizetype at = 0;
        for (int pressed = 0; pressed < 3000; ++pressed) {
            switch (upTo(60)) {
                case 0:
                    QTest::keyClick(grid.get(), Qt::Key_Home, Qt::ControlModifier);
                    at = 0;
                    break;
                case 1:
                    QTest::keyClick(grid.get(), Qt::Key_End, Qt::ControlModifier);
                    at = order.size() - 1;
                    break;
                case 2: {
                    const QString id = order[at];
                    const bool byCode = upTo(1) == 0;
                    QTest::keyClick(grid.get(), byCode ? Qt::Key_2 : Qt::Key_3,
                                    Qt::ControlModifier);
                    order = rows(byCode ? "select id from Ref03 order by code,id"
                                        : "select id from Ref03 order by descr,id");
                    at = order.indexOf(id);
                    break;
                }
                case 3:
                    setRows(*grid, 3 + upTo(120));
                    at = order.indexOf(idUnderCursor(*grid));
                    QVERIFY(at >= 0);
                    break;
                default: {
                    const bool down = upTo(100) < 52;
                    const int held = upTo(20);
                    for (int i = 0; i < held; ++i) {
                        QTest::keyClick(grid.get(), down ? Qt::Key_Down : Qt::Key_Up);
                    }
                    at = std::clamp<qsizetype>(at + (down ? held : -held), 0, order.size() - 1);
                    pressed += held;
                }
            }
            QCOMPARE(idUnderCursor(*grid), order[at]);
            QVERIFY(grid->currentRow() >= 1 && grid->currentRow() < grid->visibleRows());
            const unsigned row = grid->currentRow();
            QCOMPARE(grid->cellText(row, 1), order[at]);
        }
        QVERIFY(host_.calls.empty());
    }

    void aKeyWithinTheBufferPaintsTwoCells() {
        makeGoods(300);
        const auto grid = shown<Browse>(20);
        QVERIFY(QTest::qWaitForWindowExposed(grid.get()));
        QCoreApplication::processEvents();
        QRegion painted;
        struct watcher : QObject {
            explicit watcher(QRegion& seen) : region(seen) {}
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint) {
                    region += static_cast<QPaintEvent*>(event)->region();
                }
                return false;
            }
            QRegion& region;
        } watched(painted);
        grid->installEventFilter(&watched);
        QTest::keyClick(grid.get(), Qt::Key_Down);
        QCoreApplication::processEvents();
        QCOMPARE(painted.boundingRect(), grid->cellRectangle(1, 1) | grid->cellRectangle(2, 1));
        QCOMPARE(host_.beeps, 0);
    }

    // --- The wheel

    void theWheelScrollsAndIsQuietAtTheEnds() {
        makeGoods(300);
        const auto grid = shown<Browse>(20, u"Ref03_ID");
        wheel(*grid, 5);
        QCOMPARE(grid->mRec1(), 5U);
        QCOMPARE(grid->currentRow(), 1U);
        wheel(*grid, -9);
        QCOMPARE(grid->mRec1(), 0U);
        QCOMPARE(host_.beeps, 0);
        wheel(*grid, 1000);
        QCOMPARE(rowTexts(*grid, 19)[0], QString("312"));
        const int beeps = host_.beeps;
        QCOMPARE(beeps, 1);
        wheel(*grid, 50);
        QCOMPARE(host_.beeps, beeps);
        wheel(*grid, -1000);
        QCOMPARE(rowTexts(*grid, 1)[0], QString("1"));
        const int up = host_.beeps;
        wheel(*grid, -50);
        QCOMPARE(host_.beeps, up);
    }

    // --- Orders

    void ctrlDigitSortsAroundTheRecord() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        for (int i = 0; i < 300; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Down);
        }
        const qint64 id = grid->getId();
        QTest::keyClick(grid.get(), Qt::Key_3, Qt::ControlModifier);
        QVERIFY(output_.text().contains("colWithIndexWichSelect=2"));
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
        QCOMPARE(grid->getId(), id);
        QTest::keyClick(grid.get(), Qt::Key_4, Qt::ControlModifier);
        QTest::keyClick(grid.get(), Qt::Key_0, Qt::ControlModifier);
        QVERIFY(output_.text().contains("colWithIndexWichSelect=9"));
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
    }

    void aWordIsFoundAsItIsTyped() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20, u"Ref03_DESCR");
        QTest::keyClick(grid.get(), Qt::Key_Right);
        QTest::keyClick(grid.get(), Qt::Key_Right);
        type(*grid, "Гвозди 77");
        QVERIFY(output_.text().contains("tmpWordForFind=[Гвозди 77] "));
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 77"));
        type(*grid, "1");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 771"));
        QVERIFY(saveScreenshot(*grid, "browseFind"));
        // Nothing begins so: the view stays.
        type(*grid, "x");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 771"));
        QTest::keyClick(grid.get(), Qt::Key_Down);
        type(*grid, "гвозди 5");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[2], QString("Гвозди 772"));
    }

    void findingByAnotherColumnKeepsTheOrder() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20, u"Ref03_DESCR");
        QTest::keyClick(grid.get(), Qt::Key_Right);
        type(*grid, "0005");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[1], QString("000500"));
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
        QTest::keyClick(grid.get(), Qt::Key_Down);
        QCOMPARE(rowTexts(*grid, grid->currentRow())[1], QString("000501"));
        // The price has no index.
        QTest::keyClick(grid.get(), Qt::Key_Right);
        QTest::keyClick(grid.get(), Qt::Key_Right);
        type(*grid, "3");
        QCOMPARE(rowTexts(*grid, grid->currentRow())[1], QString("000501"));
    }

    void cellsAreCopied() {
        makeGoods(300);
        const auto grid = shown<Browse>(20);
        QTest::keyClick(grid.get(), Qt::Key_Right);
        QTest::keyClick(grid.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("000001"));
        QTest::keyClick(grid.get(), Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(grid.get(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(grid.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("000001\tГвозди 1\n000002\tГвозди 2"));
    }

    void returnTellsOfTheCell() {
        makeGoods(3);
        const auto grid = shown<Browse>(20);
        for (const auto& [key, held, told] : {std::tuple{Qt::Key_Return, Qt::NoModifier, true},
                                              {Qt::Key_Enter, Qt::ShiftModifier, true},
                                              {Qt::Key_F4, Qt::NoModifier, true},
                                              {Qt::Key_F4, Qt::ShiftModifier, false},
                                              {Qt::Key_Return, Qt::ControlModifier, false}}) {
            const qsizetype before = output_.text().count("cellEdit(1, 1) from func: cellEdit");
            QTest::keyClick(grid.get(), key, held);
            // Of the browse, and of the grid.
            QCOMPARE(output_.text().count("cellEdit(1, 1) from func: cellEdit") - before,
                     told ? 2 : 0);
        }
    }

    void theMouseChoosesRowsOfTheTableAlone() {
        makeGoods(0);
        sql("insert into Ref03 (code) values ('1'),('2'),('3')");
        const auto grid = shown<Browse>(20);
        QTest::mouseClick(grid.get(), Qt::LeftButton, {}, grid->cellRectangle(3, 2).center());
        QCOMPARE(grid->getId(), 3);
        QCOMPARE(grid->currentColumn(), 2U);
        QTest::mouseClick(grid.get(), Qt::LeftButton, {}, grid->cellRectangle(9, 1).center());
        QCOMPARE(grid->getId(), 3);
    }

    // --- Sizes

    void aNarrowWindowKeepsTheCursorInSight() {
        makeGoods(300);
        const auto grid = shown<Browse>(20);
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Right);
        }
        for (int i = 0; i < 30; ++i) {
            QTest::keyClick(grid.get(), Qt::Key_Down);
        }
        QCOMPARE(grid->currentColumn(), 4U);
        grid->resize(200, grid->height());
        QCOMPARE(grid->currentColumn(), 2U);
        setRows(*grid, 10);
        QCOMPARE(grid->currentRow(), 9U);
        setRows(*grid, 128);
        QCOMPARE(rowTexts(*grid, 127)[0].isEmpty(), false);
    }

    void aWindowGrowsNoHigherThanItsBufferReaches() {
        makeGoods(300);
        auto* const grid = made<Browse>(20).release();
        QWidget* const window = localVclWindowShow(grid, localVclWindowParameters{});
        window->resize(600, 8000);
        QCoreApplication::processEvents();
        QCOMPARE(grid->visibleRows(), 128U);
        grid->setFont(QFont(grid->font().family(), 14));
        QCoreApplication::processEvents();
        window->resize(600, 9000);
        QVERIFY(grid->visibleRows() <= 128U);
    }

    void aGridTooHighEndsTheProgram() {
        QProcess program;
        program.setWorkingDirectory(folder_.path());
        program.start(QCoreApplication::applicationFilePath(), {"--too-high"});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        const QByteArray told = program.readAllStandardError().trimmed();
        QVERIFY2(told.endsWith("critical [resizeEvent] [Grid too big for buffer size! ]"), told);
    }

public:
    // What that program does.
    void growTooHigh() {
        makeGoods(300);
        const auto grid = shown<Browse>(128);
        QObject::connect(qApp, &QCoreApplication::aboutToQuit, [] { std::_Exit(2); });
        host_.atBox = [this] { std::cerr << host_.calls.back() << std::endl; };
        grid->setMaximumHeight(QWIDGETSIZE_MAX);
        grid->resize(500, grid->height() + 40);
        std::_Exit(3);
    }

private slots:
    // --- Choosing

    void returnChoosesTheRecord() {
        makeGoods(1000);
        auto* const grid = made<Browse>(20, u"Ref03_CODE", Purpose::select).release();
        const QPointer<QWidget> window = localVclWindowShow(grid, localVclWindowParameters{});
        long long chosen = 0;
        connect(grid, &Browse::idSelectedSignal, this, [&](long long id) { chosen = id; });
        QTest::keyClick(grid, Qt::Key_Down);
        QTest::keyClick(grid, Qt::Key_Return);
        QCOMPARE(chosen, 42);
        QVERIFY(!window->isVisible());
        QTRY_VERIFY(window.isNull());
        const QString told = output_.text();
        QVERIFY(told.contains("id = 42 "));
        QVERIFY(told.contains("emit this->idSelectedSignal(42)"));
        QVERIFY(told.contains("EMITED "));
    }

    void whereThereIsNoIdReturnIsAKeyLikeOthers() {
        makeGoods(0);
        auto grid = shown<Browse>(20, u"Ref03_CODE", Purpose::select);
        QTest::keyClick(grid.get(), Qt::Key_Return);
        QVERIFY(grid->isVisible());
        QVERIFY(output_.text().contains("id = 0"));
        QVERIFY(output_.text().contains("cellEdit(0, 1) from"));
    }

    void theWindowMayGoInsideOfItsOwnSignal() {
        makeGoods(1000);
        for (const bool byMouse : {false, true}) {
            auto* const grid = made<Browse>(20, u"Ref03_CODE", Purpose::select).release();
            const QPointer<QWidget> window = localVclWindowShow(grid, localVclWindowParameters{});
            connect(grid, &Browse::idSelectedSignal, this, [&] { delete window.data(); });
            if (byMouse) {
                QTest::mouseDClick(grid, Qt::LeftButton, {}, grid->cellRectangle(3, 1).center());
            } else {
                QTest::keyClick(grid, Qt::Key_Enter);
            }
            QVERIFY(window.isNull());
        }
    }

    // --- Failures

    void aRefillThatFailsLeavesWhatWasRead() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        sql("alter table Ref03 rename to Gone");
        QTest::keyClick(grid.get(), Qt::Key_End, Qt::ControlModifier);
        QVERIFY(host_.calls.size() >= 2U);
        QCOMPARE(grid->getId(), 0);
        QCOMPARE(grid->mRec1(), 0U);
        for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp}) {
            QTest::keyClick(grid.get(), key);
        }
        wheel(*grid, 4);
        sql("alter table Gone rename to Ref03");
        QTest::keyClick(grid.get(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(grid->getId(), 41);
    }

    void theWindowMayGoWhileAStatementFails() {
        const struct {
            Qt::Key key;
            Qt::KeyboardModifier held;
        } keys[] = {{Qt::Key_End, Qt::ControlModifier},    {Qt::Key_Up, Qt::NoModifier},
                    {Qt::Key_Home, Qt::ControlModifier},   {Qt::Key_3, Qt::ControlModifier},
                    {Qt::Key_PageUp, Qt::ControlModifier}, {Qt::Key_0, Qt::NoModifier}};
        for (const auto& [key, held] : keys) {
            makeGoods(1000);
            QPointer<Browse> grid = shown<Browse>(20).release();
            QTest::keyClick(grid.data(), Qt::Key_Right);
            sql("alter table Ref03 rename to Gone");
            host_.atBox = [&] { delete grid.data(); };
            QTest::sendKeyEvent(QTest::Press, grid.data(), key,
                                held == Qt::NoModifier && key == Qt::Key_0 ? "0" : "", held, 0);
            QVERIFY2(grid.isNull(), qPrintable(QString::number(key)));
        }
        makeGoods(1000);
        QPointer<Browse> grid = shown<Browse>(20).release();
        wheel(*grid, 1);
        sql("alter table Ref03 rename to Gone");
        host_.atBox = [&] { delete grid.data(); };
        wheel(*grid, 300);
        QVERIFY(grid.isNull());
    }

    void aWindowThatGrowsWhileAStatementFailsIsFilledLater() {
        makeGoods(1000);
        const auto grid = shown<Browse>(20);
        sql("alter table Ref03 rename to Gone");
        host_.atBox = [&] { setRows(*grid, 30); };
        QTest::keyClick(grid.get(), Qt::Key_Up);
        sql("alter table Gone rename to Ref03");
        QTest::keyClick(grid.get(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(rowTexts(*grid, 29)[1], QString("000029"));
    }

    // --- Layout

    void anotherLayoutShowsTheSameColumns() {
        makeGoods(300);
        const auto grid = shown<Browse>(20);
        localValueDescription layout = grid->layoutAsValueListGet();
        QVERIFY(grid->layoutReconfigureByJson(layout));
        QCOMPARE(rowTexts(*grid, 1), QStringList({"13", "000001", "Гвозди 1", "1.5"}));
        QTest::keyClick(grid.get(), Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(grid->dataSource().currentIdx()->name, std::u16string(u"Ref03_DESCR"));
    }
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    browse tests;
    if (argc > 1 && QByteArray(argv[1]) == "--too-high") {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        tests.growTooHigh();
    }
    return QTest::qExec(&tests, argc, argv);
}
#include "browse.moc"
