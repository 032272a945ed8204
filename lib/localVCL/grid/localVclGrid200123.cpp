#include "localVCL/grid/localVclGrid200123.h"

#include <QEvent>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

#include "grid/localVclGridPrepared.h"
#include "grid/localVclGridScope.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/font/localVclFont.h"
#include "localVCL/text/localVclText.h"

namespace {

// The font and the screen for which the sizes of a grid are stated.
constexpr double statedPoints = 8;
constexpr double statedDotsPerInch = 96;
constexpr double pointsPerInch = 72;

constexpr int statedCellMargin = 2;
constexpr int statedRowHeight = 20;

}  // namespace

localVclGrid200123::localVclGrid200123(localContextUTF8* context,
                                       std::unique_ptr<localVclGridRows> rows, QWidget* parent)
    : QWidget(parent),
      rows_(std::move(rows)),
      scope_(std::make_shared<localVclGridScope>(context)),
      prepared_(std::make_unique<localVclGridPrepared>()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setFont(localVclFont(1));
    scopeFill();
    sizesByFont();
}

localVclGrid200123::~localVclGrid200123() {
    // The scope's values go under the turn of the language, be it later.
    localVclTurnWork::askOnce([scope = std::move(scope_)] {});
}

void localVclGrid200123::addColumn(std::unique_ptr<localVclGridColumn> column) {
    auto* const button =
        new localVclGrid200123headButton(column->caption, headWidth(*column), rowHeight, this);
    button->setToolTip(column->description);
    button->installEventFilter(this);
    connect(button, &localVclGrid200123headButton::columnResized, this,
            &localVclGrid200123::onColumnResized);
    column->headButton = button;
    columns.push_back(std::move(column));
    variableFill(columns.size() - 1);
    reposition();
    refresh();
}

void localVclGrid200123::clearColumns() {
    for (const auto& column : columns) {
        delete column->headButton;
    }
    columns.clear();
    shown_.clear();
    faults_.clear();
    blockStart_.reset();
    firstCol = 0;
    ++layoutNumber_;
}

// --- Sizes and places

void localVclGrid200123::sizesByFont() {
    const double points = font().pixelSize() > 0
                              ? font().pixelSize() * pointsPerInch / logicalDpiY()
                              : font().pointSizeF();
    scale_ = points / statedPoints * logicalDpiY() / statedDotsPerInch;
    cellMargin = scaled(statedCellMargin);
    rowHeight = scaled(statedRowHeight);
    fixedColWidth = scaled(statedFixedColWidth);
    prepared_->setFont(font());
    for (const auto& column : columns) {
        column->headButton->setSize(headWidth(*column), rowHeight);
    }
    reposition();
    refresh();
}

int localVclGrid200123::scaled(int pixels) const {
    return std::max(1, static_cast<int>(std::lround(pixels * scale_)));
}

int localVclGrid200123::headWidth(const localVclGridColumn& column) const {
    return scaled(column.width) + 2 * cellMargin;
}

unsigned localVclGrid200123::visibleRows() const {
    return static_cast<unsigned>((height() + 1) / rowStep());
}

unsigned localVclGrid200123::lastColumn() const {
    const auto shown = static_cast<unsigned>(columns.size()) - firstCol;
    return fixedCols + shown - 1;
}

int localVclGrid200123::columnOf(unsigned screenColumn) const {
    return screenColumn < fixedCols ? rowHead
                                    : static_cast<int>(screenColumn - fixedCols + firstCol);
}

localVclGrid200123::RowNumber localVclGrid200123::rowNumber(unsigned row) const {
    const RowNumber behindHead = RowNumber{row} - headRows;
    return row < headRows ? behindHead : firstRow + behindHead;
}

QRect localVclGrid200123::cellRectangle(unsigned row, unsigned column) const {
    const int top = static_cast<int>(row) * rowStep() + rowGap;
    if (column < fixedCols) {
        return {0, top, fixedColWidth, rowStep()};
    }
    const auto number = static_cast<std::size_t>(columnOf(column));
    if (number >= columns.size()) {
        return {};
    }
    const QWidget& head = *columns[number]->headButton;
    return {head.x(), top, head.width(), rowStep()};
}

void localVclGrid200123::reposition() {
    int x = static_cast<int>(fixedCols) * fixedColWidth;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        QWidget* const head = columns[i]->headButton;
        if (i < firstCol) {
            head->move(0, rowGap);
            head->hide();
        } else {
            head->move(x, rowGap);
            head->show();
            x += colGap + head->width();
        }
    }
}

void localVclGrid200123::onColumnResized() {
    for (const auto& column : columns) {
        const QWidget& head = *column->headButton;
        if (head.width() != headWidth(*column)) {
            const int inner = std::max(1, head.width() - 2 * cellMargin);
            column->width = std::max(1, static_cast<int>(std::lround(inner / scale_)));
        }
    }
    reposition();
    refresh();
}

void localVclGrid200123::resizeEvent(QResizeEvent* event) {
    const unsigned last = std::max(visibleRows(), headRows + 1) - 1;
    if (mCurRow > last) {
        // What stood under the cursor stays under it.
        const unsigned up = mCurRow - last;
        firstRow += up;
        setCurrentCell(last, mCurCol);
    }
    reposition();
    QWidget::resizeEvent(event);
    refresh();
}

void localVclGrid200123::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    // Keys reach the grid as soon as its window is open.
    if (window()->focusWidget() == nullptr) {
        setFocus();
    }
    refresh();
}

void localVclGrid200123::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        sizesByFont();
    }
}

// --- The cursor

void localVclGrid200123::setCurrentCell(unsigned row, unsigned column) {
    update(cellRectangle(mCurRow, mCurCol));
    mCurRow = row;
    mCurCol = column;
    update(cellRectangle(mCurRow, mCurCol));
}

void localVclGrid200123::scrollRowDown() {
    ++firstRow;
    setCurrentCell(mCurRow, mCurCol);
    refresh();
}

void localVclGrid200123::scrollRowUp() {
    if (firstRow > 0) {
        --firstRow;
        setCurrentCell(mCurRow, mCurCol);
        refresh();
    }
}

// A grid without columns has no cell that the cursor could go to.
bool localVclGrid200123::hasRow(unsigned row) const {
    if (columns.empty()) {
        return false;
    }
    return rows_ == nullptr || rowNumber(row) < rows_->count();
}

bool localVclGrid200123::find(const QString& text) {
    return text.isEmpty();
}

void localVclGrid200123::cellEdit(unsigned row, unsigned column) {
    traceLine(localVclText(QStringLiteral("cellEdit(%1, %2) from").arg(row).arg(column)),
              "cellEdit");
}
