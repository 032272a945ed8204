// The hand-drawn grid: head buttons above columns, cells that it paints itself, a cursor, a word
// typed to search for, formulas computed row by row. It has no item model.
//
// What stands in a cell is one virtual operation, cellText(); by default it asks the rows given to
// the constructor (localVclGridRows), and without rows the columns' formulas. Where the rows or a
// formula belong to the language, texts are made under its turn and never while painting: the grid
// keeps the texts of the cells in view, paints those, and makes them anew at each key, click and
// refresh(), after it has been painted for another reason, and when the turn becomes free again.
//
// Cells are numbered as they stand on the screen. Column 0 is the row head and does not scroll; a
// column c from fixedCols on shows columns[c - fixedCols + firstCol]. Row 0 holds the head buttons,
// rows below headRows do not scroll.
//
// On the windows' thread only; made under the turn. It goes without the turn, its values later.
#pragma once

#include <QHash>
#include <QKeyCombination>
#include <QPointer>
#include <QRegion>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"
#include "localVCL/grid/localVclGrid200123headButton.h"
#include "localVCL/grid/localVclGridColumn.h"
#include "localVCL/grid/localVclGridRows.h"
#include "localVCL/window/localVclTurn.h"

class localContextUTF8;
class localValueList;
class localVclGridScope;
class localVclGridPrepared;

class localVclGrid200123 : public QWidget {
    Q_OBJECT

public:
    using RowNumber = localVclGridRows::Number;

    // Formulas are computed in a scope of the grid's own, below `context` (null: the global one).
    // Once that scope has ended the grid's stands below the global one.
    explicit localVclGrid200123(localContextUTF8* context,
                                std::unique_ptr<localVclGridRows> rows = nullptr,
                                QWidget* parent = nullptr);
    ~localVclGrid200123() override;

    // Makes the column's head button. A column with an id gets a variable of that name in the
    // grid's scope, holding the column's number from 1. Under the turn.
    void addColumn(std::unique_ptr<localVclGridColumn> column);
    std::size_t columnsCount() const { return columns.size(); }
    // Of a number from 0 to columnsCount() - 1.
    const localVclGridColumn& column(std::size_t number) const { return *columns[number]; }

    unsigned currentRow() const { return mCurRow; }
    unsigned currentColumn() const { return mCurCol; }
    // Rows of the screen that are in sight as a whole, head rows included.
    unsigned visibleRows() const;
    // Where a cell stands, also outside of what is seen. Of a column that is none: empty.
    QRect cellRectangle(unsigned row, unsigned column) const;

    // Places the head buttons by firstCol and their widths.
    void reposition();
    // Makes the texts in view anew and paints them: after every change of what is shown.
    void refresh();

    // Puts the cursor on a cell of the screen.
    virtual void setCurrentCell(unsigned row, unsigned column);
    // The layout as a value list: "grid" holds "columns". Under the turn.
    virtual localValueDescription layoutAsValueListGet();
    // Takes such a list, or a text of JSON that holds one; an empty text takes the layout as it is.
    // False, with everything as it was, for a value that holds no layout. Under the turn.
    virtual bool layoutReconfigureByJson(const localValueDescription& value);
    virtual QPixmap cellPixmap(unsigned row, unsigned column);
    virtual QString cellText(unsigned row, unsigned column);
    // A person wants to change a cell. The base tells so on the standard output stream.
    virtual void cellEdit(unsigned row, unsigned column);
    // Looks for a typed word and puts the cursor there. The base finds the empty word only.
    virtual bool find(const QString& text);
    virtual void scrollRowDown();
    virtual void scrollRowUp();

    // --- What a derived grid adds to, behind the operations above

    // The number of the row that stands in a row of the screen; below 0 for pinned ones.
    virtual RowNumber rowNumber(unsigned row) const;
    // Shows the table's start or end and puts the cursor there (Ctrl+Home, Ctrl+End).
    virtual void goToStart();
    virtual void goToEnd();
    // The wheel: so many rows down, up where it is negative.
    virtual void scrollRows(int rows);
    // What keys do, for the list of them; one that is chosen there is pressed.
    struct Key {
        QString words;
        QKeyCombination key;
    };
    virtual QList<Key> keys() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    // Keys of a watched child are keys of the grid.
    bool eventFilter(QObject* watched, QEvent* event) override;

    localVclGridRows* rows() const { return rows_.get(); }
    // The grid's scope, under the turn; null when there is no language any more.
    localContextUTF8* context();

    int rowStep() const { return rowHeight + rowGap; }
    // Whether there is anything in a row of the screen.
    bool hasRow(unsigned row) const;
    // Whether texts are being made: the rows must not be led elsewhere meanwhile.
    bool isCollecting() const { return isCollecting_; }
    // The number of the last column on the screen that there is; fixedCols - 1 without columns.
    unsigned lastColumn() const;
    // The text of a column of a row that has been entered; -1 is the row head.
    virtual QString rowText(RowNumber row, int column);
    // The text of an expression in the grid's scope; nothing, with a status, when it cannot be
    // computed. The grid may have gone behind it.
    std::optional<QString> evaluatedText(int& status, int column, const std::u16string& expression);
    // What a cell without any text shows: its place.
    static QString placeText(RowNumber column, RowNumber row);
    // Takes the layout that stands under "grid". Under the turn.
    virtual void layoutApply(const localValueList& grid);
    void clearColumns();
    void setSearchText(const QString& text);
    // Forgets the marked block; for who gives the rows other numbers.
    void clearBlock();
    // Copies the marked block, or the cursor's cell, to the clipboard.
    void copy();
    void openLayoutDialog();
    // The keys in a menu, at a place of the screen.
    void openKeysMenu(const QPoint& place);

    static constexpr int statedFixedColWidth = 25;

    QString searchText;
    bool selectMode = false;
    std::vector<std::unique_ptr<localVclGridColumn>> columns;
    unsigned mCurRow = 1;
    unsigned mCurCol = 1;
    // Pixels, as stated for the grid's own font on a screen of 96 dots an inch; scaled to others.
    int cellMargin = 2;
    int colGap = 2;
    int rowGap = 1;
    int rowHeight = 20;
    unsigned firstCol = 0;
    RowNumber firstRow = 0;
    unsigned fixedCols = 1;
    int fixedColWidth = statedFixedColWidth;
    unsigned headRows = 1;

protected slots:
    void onColumnResized();

private:
    // What a cell shows.
    struct Shown {
        QString text = {};
        QPixmap pixmap = {};
    };
    // A row's number, and a column's number from 0, or -1 for the row head.
    using Cell = std::pair<RowNumber, int>;

    struct Collected {
        QHash<Cell, Shown> shown;
        QRegion changed;
    };
    // The grid as it is now. A formula may end the grid or change its layout.
    class Watch {
    public:
        explicit Watch(localVclGrid200123& grid) : grid_(&grid), layout_(grid.layoutNumber_) {}
        bool isGone() const { return grid_.isNull(); }
        bool stands() const { return !isGone() && grid_->layoutNumber_ == layout_; }

    private:
        QPointer<localVclGrid200123> grid_;
        unsigned layout_;
    };
    static constexpr int rowHead = -1;

    int columnOf(unsigned screenColumn) const;
    unsigned columnAt(int x) const;
    QRect rowRectangle(unsigned row) const {
        return {0, rowStep() * static_cast<int>(row), width(), rowStep()};
    }
    unsigned rowsInSight() const { return static_cast<unsigned>(height() / rowStep()) + 1; }

    void sizesByFont();
    int scaled(int pixels) const;
    int headWidth(const localVclGridColumn& column) const;
    void showColumnsFrom(unsigned column);

    // Keys (localVclGridKeys.cpp)
    void moveRight();
    void moveLeft();
    void pageDown();
    void pageUp();
    void searchTextKey(const QKeyEvent& event);

    // The marked block (localVclGridBlock.cpp)
    void blockKey(const QKeyEvent& event);
    void blockStep(Qt::KeyboardModifiers modifiers);
    bool isMarked(const Cell& cell) const;
    void copyCells(const Cell& one, const Cell& other);

    // Texts (localVclGridTexts.cpp)
    bool isInLanguage() const;
    void scopeFill();
    void scopeRenew(localContextUTF8* above);
    void cursorToRows();
    void fitRowHeads();
    void variableFill(std::size_t column);
    void request(const QRegion& region);
    void requestAgain();
    void collectRequested();
    QRegion collect(const QRegion& region);
    bool collectRow(unsigned row, const QRegion& region, Collected& collected);
    bool enterRow(RowNumber row);
    void leaveRow();
    bool computeFormulas(RowNumber row);
    void tellFault(const Cell& cell, int status);

    bool takeLayout(const QString& text);

    // Painting (localVclGridPaint.cpp)
    void paintLines(QPainter& painter, const QRect& dirty) const;
    void paintCell(QPainter& painter, unsigned row, unsigned column, const QRect& cell);
    void paintText(QPainter& painter, const QString& text, const QRect& cell, int alignment,
                   Qt::TextElideMode cut = Qt::ElideRight);
    void paintSearchText(QPainter& painter);
    // The text of a cell in full when it is shown cut, else empty.
    QString cutTextAt(const QPoint& place);
    QRect searchTextRectangle() const;

    std::shared_ptr<localVclGridRows> rows_;
    std::shared_ptr<localVclGridScope> scope_;
    std::unique_ptr<localVclGridPrepared> prepared_;
    double scale_ = 1.0;

    QHash<Cell, Shown> shown_;       // what the cells in view show
    QHash<Cell, int> faults_;        // statuses of their formulas
    QHash<Cell, int> faultsBefore_;  // those that have been told
    QRegion requested_;              // cells whose texts are about to be made anew
    QRegion fresh_;                  // cells whose new texts were not painted yet
    bool isCollecting_ = false;
    unsigned layoutNumber_ = 0;       // counts layouts
    std::optional<Cell> blockStart_;  // where a marked block begins; it ends at the cursor
    QPoint wheel_;                    // turned, and not yet acted on
    localVclTurnWork turnWork_;
    localVclTurnWork copyWork_;
    localVclTurnWork layoutWork_;
};
