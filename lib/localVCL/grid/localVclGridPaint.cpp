// Drawing a grid: nothing but what has to be drawn, from the texts that are kept.
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "grid/localVclGridPrepared.h"
#include "localVCL/grid/localVclGrid200123.h"

namespace {

constexpr int pixmapSide = 16;

// A colour between two of the palette.
QColor between(const QColor& one, const QColor& other, double share) {
    const auto mixed = [share](float a, float b) {
        return a + (b - a) * static_cast<float>(share);
    };
    return QColor::fromRgbF(mixed(one.redF(), other.redF()), mixed(one.greenF(), other.greenF()),
                            mixed(one.blueF(), other.blueF()));
}

}  // namespace

void localVclGrid200123::paintEvent(QPaintEvent* event) {
    const QRegion& dirty = event->region();
    if (isInLanguage()) {
        if (const QRegion stale = dirty - std::exchange(fresh_, {}); !stale.isEmpty()) {
            request(stale);
        }
    } else {
        collect(dirty);
    }
    QPainter painter(this);
    painter.setFont(font());
    paintLines(painter, event->rect());
    for (unsigned row = 1; row < rowsInSight(); ++row) {
        if (!dirty.intersects(rowRectangle(row))) {
            continue;
        }
        for (unsigned column = 0; column <= lastColumn(); ++column) {
            const QRect cell = cellRectangle(row, column);
            if (cell.left() > event->rect().right()) {
                break;
            }
            if (dirty.intersects(cell)) {
                paintCell(painter, row, column, cell);
            }
        }
    }
    if (!searchText.isEmpty()) {
        paintSearchText(painter);
    }
}

// The ground of all cells, the head and the row heads, and the lines between cells.
void localVclGrid200123::paintLines(QPainter& painter, const QRect& dirty) const {
    const QPalette& colors = palette();
    painter.setPen(colors.color(QPalette::WindowText));
    painter.setBrush(colors.brush(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    const int headHeight = static_cast<int>(headRows) * rowStep();
    const int fixedWidth = static_cast<int>(fixedCols) * fixedColWidth;
    painter.fillRect(inside & QRect(0, 0, width(), headHeight), colors.brush(QPalette::Window));
    painter.fillRect(inside & QRect(0, 0, fixedWidth, height()), colors.brush(QPalette::Window));

    constexpr double faint = 0.2;
    painter.setPen(between(colors.color(QPalette::Base), colors.color(QPalette::Text), faint));
    for (std::size_t i = firstCol; i < columns.size(); ++i) {
        const int x = columns[i]->headButton->x();
        if (x - colGap > dirty.right()) {
            break;
        }
        painter.drawLine(x, inside.top(), x, inside.bottom());
        painter.drawLine(x - colGap, inside.top(), x - colGap, inside.bottom());
    }
    const int first = std::max(1, dirty.top() / rowStep());
    for (int y = first * rowStep(); y <= dirty.bottom(); y += rowStep()) {
        painter.drawLine(inside.left(), y, inside.right(), y);
    }
}

void localVclGrid200123::paintCell(QPainter& painter, unsigned row, unsigned column,
                                   const QRect& cell) {
    const QPalette& colors = palette();
    const auto shown = shown_.constFind(Cell(rowNumber(row), columnOf(column)));
    const QString text = shown == shown_.cend() ? QString() : shown->text;
    // Without the lines around it.
    const QRect inner = cell.adjusted(1, 0, 0, -rowGap);
    if (column < fixedCols) {
        if (shown != shown_.cend() && !shown->pixmap.isNull()) {
            QRect place(0, 0, pixmapSide, pixmapSide);
            place.moveCenter(cell.center());
            painter.drawPixmap(place, shown->pixmap);
        }
        painter.setPen(colors.color(QPalette::WindowText));
        paintText(painter, text, cell, Qt::AlignLeft, Qt::ElideLeft);
        return;
    }
    const int alignment = columns[static_cast<std::size_t>(columnOf(column))]->alignment;
    if (row == mCurRow && column == mCurCol) {
        QPen border(colors.color(QPalette::HighlightedText), rowGap);
        border.setDashPattern({1, 1});
        painter.setPen(border);
        painter.setBrush(colors.brush(QPalette::Highlight));
        painter.drawRect(inner.adjusted(0, 0, -1, -1));
        painter.setPen(colors.color(QPalette::HighlightedText));
    } else {
        if (isMarked(Cell(rowNumber(row), columnOf(column)))) {
            constexpr double pale = 0.3;
            painter.fillRect(inner, between(colors.color(QPalette::Base),
                                            colors.color(QPalette::Highlight), pale));
        } else if (row < headRows) {
            painter.fillRect(inner, colors.brush(QPalette::Window));
        }
        painter.setPen(colors.color(QPalette::Text));
    }
    paintText(painter, text, cell, alignment);
}

void localVclGrid200123::paintText(QPainter& painter, const QString& text, const QRect& cell,
                                   int alignment, Qt::TextElideMode cut) {
    if (text.isEmpty()) {
        return;
    }
    const QRect place = cell.adjusted(cellMargin, 0, -cellMargin, 0);
    const auto& prepared = prepared_->text(text, place.width(), cut);
    const QRect laid = QStyle::alignedRect(
        Qt::LeftToRight, (Qt::Alignment(alignment) & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter,
        prepared.size, place);
    painter.drawStaticText(laid.topLeft(), prepared.laidOut);
}

void localVclGrid200123::paintSearchText(QPainter& painter) {
    const QRect strip = searchTextRectangle();
    painter.fillRect(strip, palette().brush(QPalette::Highlight));
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(strip.adjusted(cellMargin, 0, -cellMargin, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, searchText);
}

// Over the cell of the last row in sight, below the cursor.
QRect localVclGrid200123::searchTextRectangle() const {
    return cellRectangle(std::max(visibleRows(), 2U) - 1, mCurCol);
}
