#include "sheet/localSxlPainting.h"

#include <QPainter>

#include <algorithm>

#include "localSxl/paint/localSxlCellPaint.h"

namespace {

QColor mixed(const QColor& a, const QColor& b, double part) {
    const auto channel = [part](int x, int y) {
        return static_cast<int>(x * part + y * (1.0 - part));
    };
    return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

}  // namespace

localSxlPainting::localSxlPainting(const localSxl& widget, QPainter& painter)
    : widget_(widget),
      sheet_(widget.sheet()),
      painter_(painter),
      left_(widget.headerWidth()),
      top_(widget.headerHeight()),
      rows_(localSxlBands(widget.rowSizes(), widget.topRow_, widget.room().height())),
      columns_(localSxlBands(widget.columnSizes(), widget.leftColumn_, widget.room().width())) {}

void localSxlPainting::paint() {
    const localSxlCellFormat& format = *sheet_.cells().defaultCell().format;
    const QSize all = widget_.size();
    painter_.fillRect(QRect(QPoint(), all), localSxlColorOf(format.colorFon));
    painter_.setPen(localSxlColorOf(format.colorText));
    painter_.scale(widget_.zoom_ / 100.0, widget_.zoom_ / 100.0);
    grid();
    cursor(Qt::white, 1);
    cells();
    // Once more, since cells beside the cursor's have painted over its frame.
    cursor(Qt::NoBrush, 2);
    headers();
}

void localSxlPainting::headers() {
    const QPalette& palette = widget_.palette();
    const QSize room = widget_.room();
    const QColor background = palette.color(QPalette::Button);
    painter_.fillRect(0, 0, left_ + room.width(), top_, background);
    painter_.fillRect(0, 0, left_, top_ + room.height(), background);
    painter_.setFont(widget_.font());
    const localSxlPlace current = widget_.current();
    for (const localSxlBand& column : columns_) {
        header({left_ + column.at, 0, column.size, top_}, 0, column.number,
               column.number == current.column);
    }
    for (const localSxlBand& row : rows_) {
        header({0, top_ + row.at, left_, row.size}, row.number, 0, row.number == current.row);
    }
    painter_.fillRect(0, 0, left_, top_, background);
    painter_.setPen(palette.color(QPalette::Mid));
    painter_.drawLine(left_ - 1, 0, left_ - 1, top_ + room.height());
    painter_.drawLine(0, top_ - 1, left_ + room.width(), top_ - 1);
}

void localSxlPainting::header(const QRect& box, std::uint32_t row, std::uint32_t column,
                              bool isCurrent) {
    const QPalette& palette = widget_.palette();
    if (isCurrent) {
        painter_.fillRect(
            box, mixed(palette.color(QPalette::Highlight), palette.color(QPalette::Button), 0.3));
    }
    painter_.setPen(palette.color(QPalette::Mid));
    painter_.drawLine(box.topRight(), box.bottomRight());
    painter_.drawLine(box.bottomLeft(), box.bottomRight());
    painter_.setPen(palette.color(QPalette::ButtonText));
    constexpr int centered = Qt::AlignHCenter | Qt::AlignVCenter;
    painter_.drawText(box, centered, widget_.cellText(row, column));
}

// The lines are as faint as the default text is strong, so that cells stand out.
void localSxlPainting::grid() {
    const localSxlCellFormat& format = *sheet_.cells().defaultCell().format;
    const QColor faint =
        mixed(localSxlColorOf(format.colorText), localSxlColorOf(format.colorFon), 0.2);
    painter_.setPen(QPen(faint, widget_.lineWidth_));
    const QSize room = widget_.room();
    for (const localSxlBand& column : columns_) {
        const int x = left_ + column.at + column.size - 1;
        painter_.drawLine(x, top_, x, top_ + room.height());
    }
    for (const localSxlBand& row : rows_) {
        const int y = top_ + row.at + row.size - 1;
        painter_.drawLine(left_, y, left_ + room.width(), y);
    }
}

void localSxlPainting::cursor(const QBrush& brush, int lineWidth) {
    const localSxlPlace current = widget_.current();
    const localSxlBand* const row = bandOf(rows_, current.row);
    const localSxlBand* const column = bandOf(columns_, current.column);
    if (row == nullptr || column == nullptr) {
        return;
    }
    const QPen pen = painter_.pen();
    const QBrush brushBefore = painter_.brush();
    painter_.setPen(QPen(Qt::black, lineWidth));
    painter_.setBrush(brush);
    painter_.drawRect(boxOf(*row, *column).adjusted(0, 0, -1, -1));
    painter_.setPen(pen);
    painter_.setBrush(brushBefore);
}

void localSxlPainting::cells() {
    for (const localSxlBand& row : rows_) {
        for (auto column = columns_.begin(); column != columns_.end(); ++column) {
            const localSxlCell* const found = sheet_.cells().findFrom({row.number, column->number});
            if (found == nullptr || found->place.row != row.number) {
                break;
            }
            // On to the column of that cell, or behind it where it is hidden.
            while (column != columns_.end() && column->number < found->place.column) {
                ++column;
            }
            if (column == columns_.end()) {
                break;
            }
            if (column->number == found->place.column) {
                localSxlCellPaint(painter_, boxOf(row, *column), sheet_, *found,
                                  localSxlFontSize::points);
            } else {
                --column;
            }
        }
    }
}

QRect localSxlPainting::boxOf(const localSxlBand& row, const localSxlBand& column) const {
    return {left_ + column.at, top_ + row.at, column.size, row.size};
}

const localSxlBand* localSxlPainting::bandOf(const std::vector<localSxlBand>& bands,
                                             std::uint32_t number) const {
    const auto found = std::lower_bound(
        bands.begin(), bands.end(), number,
        [](const localSxlBand& band, std::uint32_t wanted) { return band.number < wanted; });
    return found == bands.end() || found->number != number ? nullptr : &*found;
}
