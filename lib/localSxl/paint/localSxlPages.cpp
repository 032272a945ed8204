#include "localSxl/paint/localSxlPages.h"

#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <map>
#include <vector>

#include "localSxl/paint/localSxlBands.h"
#include "localSxl/paint/localSxlCellPaint.h"

namespace {

// Pixels, of which an inch has 96.
constexpr int headHeight = 16;
constexpr int headWidth = 48;

struct Page {
    std::uint32_t first;
    std::uint32_t last;
};

// What of the numbers in use stands on which page. Numbers go up.
std::vector<Page> pagesOf(const std::vector<std::uint32_t>& used, const localSxlBandSizes& sizes,
                          int room) {
    const auto pageFrom = [&](std::uint32_t first) {
        Page page{first, first};
        for (const localSxlBand& band : localSxlBands(sizes, first, room)) {
            page.last = band.at + band.size <= room ? band.number : page.last;
        }
        return page;
    };
    std::vector<Page> pages;
    std::uint32_t next = 1;
    for (const std::uint32_t number : used) {
        if (!pages.empty() && number <= pages.back().last) {
            continue;
        }
        const Page page = pageFrom(next);
        pages.push_back(number <= page.last ? page : pageFrom(number));
        next = pages.back().last + 1;
    }
    return pages;
}

class Printing {
public:
    Printing(const localSxlSheet& sheet, QPagedPaintDevice& device)
        : sheet_(sheet),
          device_(device),
          rowSizes_(localSxlRowSizes(sheet)),
          columnSizes_(localSxlColumnSizes(sheet)) {}

    bool print() {
        if (!painter_.begin(&device_)) {
            return false;
        }
        const double scale = device_.logicalDpiX() / 96.0;
        const QRect paper = device_.pageLayout().paintRectPixels(device_.logicalDpiX());
        room_ = QSize(static_cast<int>(paper.width() / scale) - headWidth,
                      static_cast<int>(paper.height() / scale) - headHeight);
        painter_.scale(scale, scale);
        usedCollect();
        const auto rowPages = pagesOf(rows_, rowSizes_, room_.height());
        columnPages_ = pagesOf(columns_, columnSizes_, room_.width());
        bool isDrawn = true;
        for (const Page& rows : rowPages) {
            isDrawn = isDrawn && rowPage(rows);
        }
        return painter_.end() && isDrawn;
    }

private:
    void usedCollect() {
        localSxlEachCell(sheet_.cells(), {1, 1}, sheet_.cells().lastRow(),
                         [this](const localSxlCell& cell) {
                             if (rows_.empty() || rows_.back() != cell.place.row) {
                                 rows_.push_back(cell.place.row);
                             }
                             columns_.push_back(cell.place.column);
                         });
        std::sort(columns_.begin(), columns_.end());
        columns_.erase(std::unique(columns_.begin(), columns_.end()), columns_.end());
    }

    bool rowPage(const Page& rows) {
        std::map<std::size_t, std::vector<const localSxlCell*>> byPage;
        localSxlEachCell(sheet_.cells(), {rows.first, 1}, rows.last, [&](const localSxlCell& cell) {
            const auto page = std::lower_bound(
                columnPages_.begin(), columnPages_.end(), cell.place.column,
                [](const Page& before, std::uint32_t column) { return before.last < column; });
            byPage[static_cast<std::size_t>(page - columnPages_.begin())].push_back(&cell);
        });
        for (const auto& [page, cells] : byPage) {
            if (isBegun_ && !device_.newPage()) {
                return false;
            }
            isBegun_ = true;
            draw(rows, columnPages_[page], cells);
        }
        return true;
    }

    static std::vector<localSxlBand> bandsOf(const localSxlBandSizes& sizes, const Page& page,
                                             int room) {
        std::vector<localSxlBand> bands = localSxlBands(sizes, page.first, room);
        std::erase_if(bands, [&](const localSxlBand& band) { return band.number > page.last; });
        return bands;
    }

    static const localSxlBand* find(const std::vector<localSxlBand>& bands, std::uint32_t number) {
        const auto found = std::lower_bound(
            bands.begin(), bands.end(), number,
            [](const localSxlBand& band, std::uint32_t wanted) { return band.number < wanted; });
        return found == bands.end() || found->number != number ? nullptr : &*found;
    }

    void draw(const Page& rowPage, const Page& columnPage,
              const std::vector<const localSxlCell*>& cells) {
        // The numbers at the edges end with the cells.
        Page columnsInUse{columnPage.first, columnPage.first};
        for (const localSxlCell* const cell : cells) {
            columnsInUse.last = std::max(columnsInUse.last, cell->place.column);
        }
        const Page rowsInUse{rowPage.first, cells.back()->place.row};
        const auto rows = bandsOf(rowSizes_, rowsInUse, room_.height());
        const auto columns = bandsOf(columnSizes_, columnsInUse, room_.width());
        QFont font = QGuiApplication::font();
        font.setPixelSize(9);
        painter_.setFont(font);
        painter_.setPen(Qt::gray);
        for (const localSxlBand& column : columns) {
            painter_.drawText(QRect(headWidth + column.at, 0, column.size, headHeight),
                              Qt::AlignCenter, QString::number(column.number));
        }
        for (const localSxlBand& row : rows) {
            painter_.drawText(QRect(0, headHeight + row.at, headWidth - 4, row.size),
                              Qt::AlignRight | Qt::AlignVCenter, QString::number(row.number));
        }
        painter_.save();
        // The borders of the first cells lie a pixel to the left and above.
        painter_.setClipRect(headWidth - 2, headHeight - 2, room_.width() + 2, room_.height() + 2);
        for (const localSxlCell* const cell : cells) {
            const localSxlBand* const row = find(rows, cell->place.row);
            const localSxlBand* const column = find(columns, cell->place.column);
            if (row != nullptr && column != nullptr) {
                const QRect box(headWidth + column->at, headHeight + row->at, column->size,
                                row->size);
                localSxlCellPaint(painter_, box, sheet_, *cell, localSxlFontSize::pixels);
            }
        }
        painter_.restore();
    }

    const localSxlSheet& sheet_;
    QPagedPaintDevice& device_;
    const localSxlBandSizes rowSizes_;
    const localSxlBandSizes columnSizes_;
    QPainter painter_;
    QSize room_;
    std::vector<std::uint32_t> rows_;  // with cells
    std::vector<std::uint32_t> columns_;
    std::vector<Page> columnPages_;
    bool isBegun_ = false;
};

}  // namespace

bool localSxlPagesPaint(const localSxlSheet& sheet, QPagedPaintDevice& device) {
    return Printing(sheet, device).print();
}
