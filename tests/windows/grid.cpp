// The hand-drawn grid: painting, the cursor, keys, the mouse, sizes.
#include <QClipboard>
#include <QDialogButtonBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSizeGrip>
#include <QToolTip>

#include "gridTest.h"
#include "localVCL/window/localVclWindow.h"

using gridTest::column;
using gridTest::hasInk;
using gridTest::keys;
using gridTest::settle;
using Cursor = std::pair<unsigned, unsigned>;

namespace {

constexpr int rowStep = 21;
constexpr int fixedWidth = 25;

// Rows of numbers, counted: "row/column", the path above them, and pixmaps.
class numberedRows : public localVclGridRows {
public:
    explicit numberedRows(Number count) : count_(count) {}
    bool needsTurn() const override { return false; }
    Number count() const override { return count_; }
    bool enter(Number row) override {
        row_ = row;
        ++entered;
        return row < count_;
    }
    QString text(const localVclGridColumn& column) override {
        ++asked;
        return QStringLiteral("%1/%2").arg(row_).arg(column.dataBuferColumn);
    }
    QString headText() override { return QString::number(row_); }
    QPixmap pixmap() override { return pixmapShown; }

    Number count_;
    QPixmap pixmapShown;
    int entered = 0;
    int asked = 0;

private:
    Number row_ = 0;
};

}  // namespace

class gridBase : public gridTest::test {
    Q_OBJECT

    // A grid without rows of its own, of columns so wide.
    std::unique_ptr<gridTest::anyGrid> ofColumns(std::initializer_list<int> widths, QSize size) {
        auto shown = made<gridTest::anyGrid>(scope_.get());
        for (const int width : widths) {
            add(*shown, column(QString("c%1").arg(shown->columnsCount() + 1), width));
        }
        shown->resize(size);
        gridTest::show(*shown);
        return shown;
    }
    // One over numbered rows, of three columns.
    std::unique_ptr<gridTest::anyGrid> ofRows(int count, int rowsInSight) {
        auto rows = std::make_unique<numberedRows>(count);
        rows_ = rows.get();
        auto shown = made<gridTest::anyGrid>(scope_.get(), std::move(rows));
        for (int i = 0; i < 3; ++i) {
            auto one = column(QString("c%1").arg(i), 60);
            one->dataBuferColumn = i;
            add(*shown, std::move(one));
        }
        shown->resize(300, (rowsInSight + 1) * rowStep);
        gridTest::show(*shown);
        return shown;
    }
    numberedRows* rows_ = nullptr;

    static QImage picture(QWidget& widget) { return widget.grab().toImage(); }

private slots:
    // --- The members and the places of cells

    void beginsAsStated() {
        const auto shown = made<gridTest::anyGrid>(scope_.get());
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->rowHeight, 20);
        QCOMPARE(shown->fixedColWidth, fixedWidth);
        QCOMPARE(shown->colGap, 2);
        QCOMPARE(shown->rowGap, 1);
        QCOMPARE(shown->firstCol, 0U);
        QCOMPARE(shown->firstRow, 0);
        QCOMPARE(shown->fixedCols, 1U);
        QCOMPARE(shown->headRows, 1U);
        QVERIFY(shown->searchText.isEmpty());
        const localTurn::Hold turn;
        QCOMPARE(shown->context()->parent(), scope_.get());
        QCOMPARE(shown->context()->varToString(u"COLUMNNUMBER"), u"-1");
        QCOMPARE(shown->context()->varToString(u"ROWNUMBER"), u"-1");
    }

    void columnHasItsVariableAndItsButton() {
        const auto shown = made<gridTest::anyGrid>(scope_.get());
        add(*shown, column("Код", 40, u"kod"));
        add(*shown, column("Имя", 100, u"имя"));
        {
            const localTurn::Hold turn;
            QCOMPARE(shown->context()->varToString(u"KOD"), u"1");
            QCOMPARE(shown->context()->varToString(u"ИМЯ"), u"2");
            QVERIFY(scope_->varFind(u"KOD") == nullptr);
        }
        const QPushButton& button = *shown->columns[1]->headButton;
        QCOMPARE(button.text(), QString("Имя"));
        QCOMPARE(button.size(), QSize(104, 20));
        QCOMPARE(button.minimumWidth(), 1);
        QCOMPARE(button.maximumHeight(), 20);
        QCOMPARE(button.cursor().shape(), Qt::SizeHorCursor);
        QVERIFY(button.findChild<QSizeGrip*>() != nullptr);
    }

    void cellsStandBehindTheRowHead() {
        const auto shown = ofColumns({40, 100, 60}, {400, 200});
        QCOMPARE(shown->columns[0]->headButton->pos(), QPoint(25, 1));
        QCOMPARE(shown->columns[1]->headButton->pos(), QPoint(25 + 44 + 2, 1));
        QCOMPARE(shown->cellRectangle(2, 0), QRect(0, 43, 25, 21));
        QCOMPARE(shown->cellRectangle(2, 2), QRect(71, 43, 104, 21));
        QVERIFY(shown->cellRectangle(2, 4).isNull());
        QCOMPARE(shown->visibleRows(), 9U);
    }

    // --- Painting

    void withoutColumnsThereAreStripsAndLines() {
        auto shown = ofColumns({}, {200, 100});
        const QImage image = picture(*shown);
        const QColor base = shown->palette().color(QPalette::Base);
        const QColor window = shown->palette().color(QPalette::Window);
        QVERIFY(base != window);
        QCOMPARE(gridTest::ground(image, {2, 2, 190, 15}), window);
        QCOMPARE(gridTest::ground(image, {2, 25, 20, 60}), window);
        QCOMPARE(gridTest::ground(image, {30, 25, 150, 60}), base);
        for (int y = rowStep; y < 100; y += rowStep) {
            QVERIFY(image.pixelColor(100, y) != base);
            QCOMPARE(image.pixelColor(100, y + 1), base);
        }
        keys(*shown, {Qt::Key_Down, Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_PageDown,
                      Qt::Key_PageUp});
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {60, 60});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstRow, 0);
    }

    void cursorCellIsHighlighted() {
        auto shown = ofRows(10, 8);
        keys(*shown, {Qt::Key_Down, Qt::Key_Right});
        settle();
        const QImage image = picture(*shown);
        const QColor highlight = shown->palette().color(QPalette::Highlight);
        const QColor base = shown->palette().color(QPalette::Base);
        for (unsigned row = 1; row < 8; ++row) {
            for (unsigned col = 1; col <= 3; ++col) {
                const QRect cell = shown->cellRectangle(row, col).adjusted(2, 2, -2, -2);
                QCOMPARE(gridTest::ground(image, cell), row == 2 && col == 2 ? highlight : base);
                QVERIFY(hasInk(image, cell));
            }
        }
        saveScreenshot(*shown, "grid");
    }

    void alignmentPlacesTheText() {
        auto shown = ofRows(3, 4);
        const int all[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
        for (std::size_t i = 0; i < 3; ++i) {
            shown->columns[i]->alignment = all[i];
        }
        shown->refresh();
        settle();
        const QImage image = picture(*shown);
        const auto thirdWithInk = [&](unsigned col) {
            const QRect cell = shown->cellRectangle(2, col).adjusted(2, 2, -1, -2);
            QString found;
            for (int third = 0; third < 3; ++third) {
                const int width = cell.width() / 3;
                const QRect part(cell.left() + third * width, cell.top(), width, cell.height());
                found += hasInk(image, part) ? '1' : '0';
            }
            return found;
        };
        QCOMPARE(thirdWithInk(1), QString("100"));
        QCOMPARE(thirdWithInk(2), QString("001"));
        QCOMPARE(thirdWithInk(3), QString("010"));
    }

    void pixmapStandsInTheRowHead() {
        auto shown = ofRows(3, 4);
        rows_->pixmapShown = QPixmap(32, 32);
        rows_->pixmapShown.fill(Qt::red);
        shown->refresh();
        settle();
        const QImage image = picture(*shown);
        QRect place(0, 0, 16, 16);
        place.moveCenter(shown->cellRectangle(2, 0).center());
        QCOMPARE(image.pixelColor(place.topLeft()), QColor(Qt::red));
        QCOMPARE(image.pixelColor(place.bottomRight() - QPoint(0, 1)), QColor(Qt::red));
        QVERIFY(image.pixelColor(place.topLeft() - QPoint(1, 0)) != QColor(Qt::red));
    }

    void cursorMoveRepaintsItsTwoCells() {
        auto shown = ofRows(10, 8);
        settle();
        shown->painted = {};
        rows_->asked = 0;
        keys(*shown, {Qt::Key_Down});
        settle();
        const QRegion both = QRegion(shown->cellRectangle(1, 1)) + shown->cellRectangle(2, 1);
        QVERIFY((shown->painted - both).isEmpty());
        QVERIFY(!shown->painted.isEmpty());
        QCOMPARE(rows_->asked, 2);
    }

    void onlyWhatIsInSightIsAskedFor() {
        auto shown = ofRows(1000000, 8);
        rows_->asked = 0;
        shown->refresh();
        settle();
        // Eight whole rows, and the one that a pixel is left for.
        QVERIFY2(rows_->asked <= 9 * 3, qPrintable(QString::number(rows_->asked)));
        QVERIFY(rows_->asked >= 8 * 3);
        shown->goToEnd();
        settle();
        QCOMPARE(shown->cursor(), Cursor(8, 1));
        QCOMPARE(text(*shown, 8, 1), QString("999999/0"));
        QVERIFY(rows_->entered < 100);
    }

    void rowsPastTheEndAreEmpty() {
        auto shown = ofRows(3, 8);
        const QImage image = picture(*shown);
        QVERIFY(hasInk(image, shown->cellRectangle(3, 2).adjusted(2, 2, -2, -2)));
        QVERIFY(!hasInk(image, shown->cellRectangle(4, 2).adjusted(2, 2, -2, -2)));
        QVERIFY(!hasInk(image, shown->cellRectangle(4, 0).adjusted(2, 2, -2, -2)));
        QCOMPARE(text(*shown, 4, 2), QString());
        QCOMPARE(text(*shown, 1, 4), QString(" error "));
    }

    void pinnedRowsStay() {
        auto shown = ofRows(100, 8);
        shown->headRows = 3;
        shown->goToEnd();
        settle();
        QCOMPARE(text(*shown, 1, 1), QString("-2/0"));
        QCOMPARE(text(*shown, 2, 1), QString("-1/0"));
        QCOMPARE(text(*shown, 8, 1), QString("99/0"));
        const QImage image = picture(*shown);
        const QColor window = shown->palette().color(QPalette::Window);
        QCOMPARE(gridTest::ground(image, shown->cellRectangle(2, 2).adjusted(2, 2, -2, -2)),
                 window);
        QCOMPARE(gridTest::ground(image, shown->cellRectangle(3, 2).adjusted(2, 2, -2, -2)),
                 shown->palette().color(QPalette::Base));
        shown->goToStart();
        QCOMPARE(shown->cursor(), Cursor(3, 1));
        keys(*shown, {Qt::Key_Up});
        QCOMPARE(shown->cursor(), Cursor(3, 1));
    }

    // A cell shows one line, whatever its text holds.
    void textsThatDoNotFitAreCut() {
        auto shown = ofColumns({}, {200, 100});
        add(*shown, column("a", 40, {}, u"\"очень длинный текст, который не помещается\""));
        add(*shown, column("b", 60, {}, u"\"x\""));
        settle();
        const QImage image = picture(*shown);
        const QRect next = shown->cellRectangle(1, 2).adjusted(20, 3, -3, -3);
        QVERIFY(hasInk(image, shown->cellRectangle(1, 1).adjusted(2, 3, -3, -3)));
        QVERIFY(!hasInk(image, next));
    }

    // --- Keys

    void downAndUpGoAndScroll() {
        auto shown = ofRows(10, 4);
        keys(*shown, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down});
        QCOMPARE(shown->cursor(), Cursor(4, 1));
        QCOMPARE(shown->firstRow, 0);
        keys(*shown, {Qt::Key_Down, Qt::Key_Down});
        QCOMPARE(shown->cursor(), Cursor(4, 1));
        QCOMPARE(shown->firstRow, 2);
        for (int i = 0; i < 20; ++i) {
            keys(*shown, {Qt::Key_Down});
        }
        QCOMPARE(shown->firstRow, 6);
        QCOMPARE(text(*shown, shown->mCurRow, 1), QString("9/0"));
        keys(*shown, {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        for (int i = 0; i < 20; ++i) {
            keys(*shown, {Qt::Key_Up});
        }
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstRow, 0);
    }

    // Formulas alone have no last row.
    void withoutRowsDownNeverEnds() {
        auto shown = ofColumns({60}, {200, 100});
        for (int i = 0; i < 300; ++i) {
            keys(*shown, {Qt::Key_Down});
        }
        QCOMPARE(shown->cursor(), Cursor(3, 1));
        QCOMPARE(shown->firstRow, 298);
        shown->goToEnd();
        QCOMPARE(shown->firstRow, 298);
        shown->goToStart();
        QCOMPARE(shown->firstRow, 0);
    }

    void rightAtTheEdgeScrollsColumns() {
        auto shown = ofColumns({60, 60, 60, 60, 60}, {200, 100});
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        QCOMPARE(shown->firstCol, 0U);
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        QCOMPARE(shown->firstCol, 1U);
        QVERIFY(shown->columns[0]->headButton->isHidden());
        QCOMPARE(shown->columns[1]->headButton->pos(), QPoint(fixedWidth, 1));
        keys(*shown, {Qt::Key_Right, Qt::Key_Right});
        QCOMPARE(shown->firstCol, 3U);
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        keys(*shown, {Qt::Key_Right, Qt::Key_Right});
        QCOMPARE(shown->firstCol, 3U);
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        keys(*shown, {Qt::Key_Left});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        keys(*shown, {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstCol, 0U);
        QVERIFY(!shown->columns[0]->headButton->isHidden());
    }

    // A column wider than the window can be gone past.
    void wideColumnIsNoEnd() {
        auto shown = ofColumns({60, 900, 60}, {200, 100});
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->firstCol, 1U);
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->firstCol, 2U);
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->firstCol, 2U);
    }

    void pages() {
        auto shown = ofRows(20, 6);
        keys(*shown, {Qt::Key_PageDown});
        QCOMPARE(shown->cursor(), Cursor(6, 1));
        QCOMPARE(shown->firstRow, 0);
        keys(*shown, {Qt::Key_PageDown});
        QCOMPARE(shown->firstRow, 5);
        QCOMPARE(text(*shown, 1, 1), QString("5/0"));
        keys(*shown, {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageDown});
        QCOMPARE(shown->firstRow, 14);
        QCOMPARE(text(*shown, shown->mCurRow, 1), QString("19/0"));
        keys(*shown, {Qt::Key_PageUp});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstRow, 14);
        keys(*shown, {Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageUp, Qt::Key_PageUp});
        QCOMPARE(shown->firstRow, 0);
    }

    void pageDownStopsAtTheLastRow() {
        auto shown = ofRows(3, 6);
        keys(*shown, {Qt::Key_PageDown, Qt::Key_PageDown});
        QCOMPARE(shown->cursor(), Cursor(3, 1));
        QCOMPARE(shown->firstRow, 0);
    }

    void controlHomeAndEnd() {
        auto shown = ofRows(20, 6);
        keys(*shown, {Qt::Key_End}, Qt::ControlModifier);
        QCOMPARE(shown->cursor(), Cursor(6, 1));
        QCOMPARE(text(*shown, 6, 1), QString("19/0"));
        keys(*shown, {Qt::Key_Home}, Qt::ControlModifier);
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstRow, 0);
        keys(*shown, {Qt::Key_End});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
    }

    void keysWithoutRows() {
        auto shown = ofRows(0, 6);
        keys(*shown, {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp});
        keys(*shown, {Qt::Key_Home, Qt::Key_End, Qt::Key_C}, Qt::ControlModifier);
        settle();
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        QCOMPARE(shown->firstRow, 0);
    }

    // --- The word that is typed

    void typedLettersAreLookedFor() {
        auto shown = ofRows(10, 6);
        QTest::keyClicks(shown.get(), "Ab");
        QCOMPARE(shown->searchText, QString("Ab"));
        QCOMPARE(shown->words, QStringList({"A", "Ab"}));
        settle();
        const QImage image = picture(*shown);
        const QRect strip = shown->cellRectangle(6, 1).adjusted(2, 2, -2, -2);
        QCOMPARE(gridTest::ground(image, strip), shown->palette().color(QPalette::Highlight));
        QVERIFY(hasInk(image, strip));
        keys(*shown, {Qt::Key_Down});
        QVERIFY(shown->searchText.isEmpty());
        settle();
        QCOMPARE(gridTest::ground(picture(*shown), strip), shown->palette().color(QPalette::Base));
    }

    void wordThatIsNotFoundStays() {
        auto shown = ofRows(10, 6);
        shown->findsAll = false;
        QTest::keyClicks(shown.get(), "xy");
        QCOMPARE(shown->searchText, QString("xy"));
    }

    void wordTakesPrintableLettersOnly() {
        auto shown = ofRows(10, 6);
        QTest::sendKeyEvent(QTest::Click, shown.get(), Qt::Key_unknown, QString("ж"),
                            Qt::NoModifier);
        QTest::keyClicks(shown.get(), "1 ");
        QCOMPARE(shown->searchText, QString("ж1 "));
        keys(*shown, {Qt::Key_Return, Qt::Key_Tab});
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QTest::keyClick(shown.get(), 'v', Qt::ControlModifier);
        QTest::keyClick(shown.get(), 'a', Qt::AltModifier);
        QCOMPARE(shown->searchText.left(3), QString("ж1 "));
        QVERIFY(!shown->searchText.contains('v'));
        QVERIFY(!shown->searchText.contains('\r'));
    }

    void modifiersDoNotEndTheWord() {
        auto shown = ofRows(10, 6);
        QTest::keyClicks(shown.get(), "a");
        keys(*shown, {Qt::Key_Shift});
        QTest::keyClicks(shown.get(), "B");
        QCOMPARE(shown->searchText, QString("aB"));
    }

    void backspaceAndEscape() {
        auto shown = ofRows(10, 6);
        QTest::keyClicks(shown.get(), "abc");
        keys(*shown, {Qt::Key_Backspace});
        QCOMPARE(shown->searchText, QString("ab"));
        QCOMPARE(shown->words.last(), QString("ab"));
        keys(*shown, {Qt::Key_Backspace, Qt::Key_Backspace, Qt::Key_Backspace});
        QVERIFY(shown->searchText.isEmpty());
        QTest::keyClicks(shown.get(), "abc");
        keys(*shown, {Qt::Key_Escape});
        QVERIFY(shown->searchText.isEmpty());
        QCOMPARE(shown->words.last(), QString("abc"));
    }

    void baseFindsTheEmptyWordOnly() {
        const auto shown = made<localVclGrid200123>(scope_.get());
        QVERIFY(shown->find(QString()));
        QVERIFY(!shown->find("a"));
    }

    // --- The mouse

    void clickPutsTheCursor() {
        auto shown = ofRows(10, 6);
        const auto click = [&](int x, int y) {
            QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {x, y});
            return shown->cursor();
        };
        QCOMPARE(click(25 + 66 + 5, 3 * rowStep + 5), Cursor(3, 2));
        // The row head keeps the column, the head row keeps the row.
        QCOMPARE(click(5, 5 * rowStep + 5), Cursor(5, 2));
        QCOMPARE(click(290, 2 * rowStep + 5), Cursor(2, 2));
        QCOMPARE(click(24 + 3 * 66, 2 * rowStep + 5), Cursor(2, 3));
        QCOMPARE(click(5, 5), Cursor(2, 3));
    }

    void clickPastTheEndDoesNothing() {
        auto shown = ofRows(2, 6);
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {100, 5 * rowStep + 5});
        QCOMPARE(shown->cursor(), Cursor(1, 1));
    }

    void gripChangesTheWidth() {
        auto shown = ofColumns({60, 60}, {300, 100});
        auto* const head = shown->columns[0]->headButton;
        auto* const grip = head->findChild<QSizeGrip*>();
        QTest::mousePress(grip, Qt::LeftButton, {}, {2, 5});
        const QPoint to = grip->mapToGlobal(QPoint(32, 5));
        QMouseEvent move(QEvent::MouseMove, grip->mapFromGlobal(to), to, Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(grip, &move);
        QTest::mouseRelease(grip, Qt::LeftButton);
        QCOMPARE(head->size(), QSize(94, 20));
        QCOMPARE(shown->columns[0]->width, 90);
        QCOMPARE(shown->columns[1]->headButton->x(), 25 + 94 + 2);
    }

    void columnOfOnePixelIsSelectable() {
        auto shown = ofColumns({60, 60, 60}, {400, 100});
        shown->columns[1]->headButton->resize(1, 20);
        QCOMPARE(shown->cellRectangle(1, 2).width(), 1);
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        keys(*shown, {Qt::Key_Right});
        QCOMPARE(shown->cursor(), Cursor(1, 3));
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {25 + 66, rowStep + 5});
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        settle();
        picture(*shown);
    }

    void keysOfTheHeadButtonsAreTheGrids() {
        auto shown = ofRows(10, 6);
        QTest::keyClick(shown->columns[0]->headButton, Qt::Key_Down);
        QCOMPARE(shown->cursor(), Cursor(2, 1));
    }

    void wheelScrolls() {
        auto shown = ofRows(100, 6);
        const auto turn = [&](int x, int y) {
            QWheelEvent event({60, 60}, shown->mapToGlobal(QPointF(60, 60)), {}, {x, y},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(shown.get(), &event);
        };
        const int lines = QApplication::wheelScrollLines();
        turn(0, -120);
        QCOMPARE(shown->firstRow, lines);
        turn(0, -60);
        QCOMPARE(shown->firstRow, lines);
        turn(0, -60);
        QCOMPARE(shown->firstRow, 2 * lines);
        turn(0, 1200);
        QCOMPARE(shown->firstRow, 0);
        turn(0, -120 * 100);
        QCOMPARE(shown->firstRow, 94);
        QCOMPARE(shown->mCurRow, 1U);
        turn(-120, 0);
        QCOMPARE(shown->cursor(), Cursor(1, 2));
        turn(240, 0);
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(shown->firstRow, 94);
    }

    // --- Copying

    void copiesTheCursorCell() {
        auto shown = ofRows(10, 6);
        keys(*shown, {Qt::Key_Down, Qt::Key_Right});
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("1/1"));
        keys(*shown, {Qt::Key_Up});
        QTest::keyClick(shown.get(), Qt::Key_Insert, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("0/1"));
    }

    void copiesABlock() {
        auto shown = ofRows(10, 4);
        keys(*shown, {Qt::Key_Right, Qt::Key_Down});
        keys(*shown, {Qt::Key_Left, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}, Qt::ShiftModifier);
        settle();
        const QImage image = picture(*shown);
        const auto groundOf = [&](unsigned row, unsigned col) {
            return gridTest::ground(image, shown->cellRectangle(row, col).adjusted(2, 2, -2, -2));
        };
        const QColor base = shown->palette().color(QPalette::Base);
        QVERIFY(groundOf(2, 2) != base);
        QCOMPARE(groundOf(2, 2), groundOf(2, 1));
        QCOMPARE(groundOf(2, 3), base);
        saveScreenshot(*shown, "gridBlock");
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 QString("1/0\t1/1\n2/0\t2/1\n3/0\t3/1\n4/0\t4/1"));
        // A step without Shift ends the block.
        keys(*shown, {Qt::Key_Up});
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("3/0"));
    }

    void clickEndsTheBlock() {
        auto shown = ofRows(10, 6);
        keys(*shown, {Qt::Key_Down, Qt::Key_Down}, Qt::ShiftModifier);
        QTest::mouseClick(shown.get(), Qt::LeftButton, {}, {40, 5 * rowStep + 5});
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("4/0"));
        QTest::mouseClick(shown.get(), Qt::LeftButton, Qt::ShiftModifier, {40, 4 * rowStep + 5});
        QTest::keyClick(shown.get(), 'c', Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("3/0\n4/0"));
    }

    // --- Hints and the list of keys

    void hintShowsACutTextWhole() {
        auto shown = ofColumns({}, {300, 100});
        add(*shown, column("a", 40, {}, u"\"очень длинный <b>текст\""));
        add(*shown, column("b", 60, {}, u"\"x\""));
        settle();
        const auto hintAt = [&](unsigned row, unsigned col) {
            QToolTip::hideText();
            const QPoint place = shown->cellRectangle(row, col).center();
            QHelpEvent help(QEvent::ToolTip, place, shown->mapToGlobal(place));
            QApplication::sendEvent(shown.get(), &help);
            return QToolTip::text();
        };
        QCOMPARE(hintAt(1, 1), QString("очень длинный &lt;b&gt;текст"));
        QTRY_VERIFY(hintAt(1, 2).isEmpty() || !QToolTip::isVisible());
    }

    void menuListsTheKeysAndPressesThem() {
        auto shown = ofRows(20, 6);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {60, 60},
                                shown->mapToGlobal(QPoint(60, 60)));
        QApplication::sendEvent(shown.get(), &event);
        auto* const menu = shown->findChild<QMenu*>();
        QVERIFY(menu != nullptr);
        QStringList words;
        for (QAction* const action : menu->actions()) {
            words.append(action->text());
        }
        QVERIFY(words.join('|').contains("\tCtrl+End"));
        saveScreenshot(*menu, "gridKeys");
        for (QAction* const action : menu->actions()) {
            if (action->text().endsWith("\tCtrl+End")) {
                action->trigger();
            }
        }
        menu->close();
        QCOMPARE(text(*shown, shown->mCurRow, 1), QString("19/0"));
    }

    // --- Sizes

    void sizesFollowTheFont() {
        auto shown = ofColumns({60, 60}, {300, 200});
        QFont font = shown->font();
        font.setPointSizeF(16);
        shown->setFont(font);
        QCOMPARE(shown->rowHeight, 40);
        QCOMPARE(shown->fixedColWidth, 50);
        QCOMPARE(shown->columns[0]->headButton->size(), QSize(128, 40));
        QCOMPARE(shown->columns[1]->headButton->x(), 50 + 128 + 2);
        QCOMPARE(shown->columns[0]->width, 60);
        font.setPointSizeF(8);
        shown->setFont(font);
        QCOMPARE(shown->rowHeight, 20);
        QCOMPARE(shown->columns[0]->headButton->size(), QSize(64, 20));
    }

    void cursorStaysInSightAfterAResize() {
        auto shown = ofRows(20, 10);
        keys(*shown, {Qt::Key_PageDown});
        QCOMPARE(text(*shown, shown->mCurRow, 1), QString("9/0"));
        shown->resize(300, 5 * rowStep);
        settle();
        QCOMPARE(shown->cursor(), Cursor(4, 1));
        QCOMPARE(text(*shown, 4, 1), QString("9/0"));
        shown->resize(300, 5);
        settle();
        QCOMPARE(shown->cursor(), Cursor(1, 1));
        QCOMPARE(text(*shown, 1, 1), QString("9/0"));
    }

    void takesKeysAsSoonAsItsWindowIsOpen() {
        auto* const shown =
            made<gridTest::anyGrid>(scope_.get(), std::make_unique<numberedRows>(20)).release();
        add(*shown, column("c", 60));
        shown->resize(300, 200);
        localVclWindowParameters parameters;
        parameters.title = "grid";
        const QPointer<QWidget> window = localVclWindowShow(shown, parameters);
        QVERIFY(QTest::qWaitForWindowActive(window));
        QCOMPARE(QApplication::focusWidget(), shown);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(shown->cursor(), Cursor(2, 1));
        window->close();
        QTRY_VERIFY(window.isNull());
    }

    // --- Editing

    void editingIsToldOnly() {
        const auto shown = made<gridTest::anyGrid>(scope_.get());
        const outputCapture output;
        shown->cellEdit(3, 2);
        QVERIFY2(output.text().startsWith("cellEdit(3, 2) from func: cellEdit file: "),
                 qPrintable(output.text()));
        QVERIFY(output.text().contains(" line: "));
    }
};

QTEST_MAIN(gridBase)
#include "grid.moc"
