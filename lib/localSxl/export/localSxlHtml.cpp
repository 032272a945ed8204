// HTML: one table of its own. Rows and columns without cells are drawn together to one.
#include <QBuffer>
#include <QFile>

#include <algorithm>
#include <vector>

#include "export/localSxlFormats.h"
#include "localSxl/paint/localSxlBands.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

constexpr std::int64_t widestGap = 20000;  // pixels

QByteArray colorText(std::int32_t color) {
    return '#' +
           QByteArray::number(static_cast<uint>(color) & 0xffffffU, 16).rightJustified(6, '0');
}

QByteArray escaped(std::u16string_view text) {
    return QStringView(text).toString().toHtmlEscaped().toUtf8().replace('\n', "<br>");
}

QByteArray alignmentText(const localSxlCellFormat& format) {
    const QByteArray horizontal = (format.alignmentH & 4) != 0   ? "center"
                                  : (format.alignmentH & 2) != 0 ? "right"
                                                                 : "left";
    const QByteArray vertical = (format.alignmentV & 32) != 0   ? "top"
                                : (format.alignmentV & 64) != 0 ? "bottom"
                                                                : "middle";
    return "text-align:" + horizontal + ";vertical-align:" + vertical;
}

QByteArray fontText(const localSxlCellFont& font) {
    QByteArray text;
    if (!font.family.empty()) {
        // Only what names are made of: the rest could end the style.
        QString family;
        for (const char16_t unit : font.family.view()) {
            const QChar letter(unit);
            family += letter.isLetterOrNumber() || letter == u' ' || letter == u'-' ? letter
                                                                                    : QChar(u' ');
        }
        text += ";font-family:'" + family.toUtf8() + '\'';
    }
    if (font.size > 0) {
        text += ";font-size:" + QByteArray::number(font.size) + "pt";
    }
    const std::int32_t flags = font.flagsInText();
    text += (flags & localSxlCellFont::bold) != 0 ? ";font-weight:bold" : "";
    text += (flags & localSxlCellFont::italic) != 0 ? ";font-style:italic" : "";
    text +=
        (flags & localSxlCellFont::strikeout) != 0 ? ";text-decoration:line-through underline" : "";
    return text;
}

QByteArray imageText(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "<img alt=\"\" src=\"data:image/png;base64," + png.toBase64() + "\">";
}

class Html {
public:
    explicit Html(const localSxlSheet& sheet)
        : sheet_(sheet), rows_(localSxlRowSizes(sheet)), columns_(localSxlColumnSizes(sheet)) {
        localSxlEachCell(sheet.cells(), {1, 1}, sheet.cells().lastRow(),
                         [this](const localSxlCell& cell) { used_.push_back(cell.place.column); });
        std::sort(used_.begin(), used_.end());
        used_.erase(std::unique(used_.begin(), used_.end()), used_.end());
    }

    bool write(QFile& output) {
        head();
        std::uint32_t row = 0;
        std::size_t column = 0;
        bool isWritten = true;
        localSxlEachCell(
            sheet_.cells(), {1, 1}, sheet_.cells().lastRow(), [&](const localSxlCell& cell) {
                if (cell.place.row != row) {
                    bytes_ += row == 0 ? "" : "</tr>\n";
                    gap(row, cell.place.row);
                    row = cell.place.row;
                    column = 0;
                    bytes_ += "<tr style=\"height:" + QByteArray::number(rows_.of(row)) + "px\">";
                }
                for (; used_[column] < cell.place.column; ++column) {
                    empty(column);
                }
                emptyBefore(column);
                this->cell(cell);
                ++column;
                if (bytes_.size() > 1 << 20) {
                    isWritten = isWritten && output.write(bytes_) == bytes_.size();
                    bytes_.clear();
                }
            });
        bytes_ += row == 0 ? "" : "</tr>\n";
        bytes_ += "</table></body></html>\n";
        return isWritten && output.write(bytes_) == bytes_.size() && output.flush();
    }

private:
    // The pixels of all from behind `from` to before `to`.
    static std::int64_t between(const localSxlBandSizes& sizes, std::uint32_t from,
                                std::uint32_t to) {
        std::int64_t pixels = 0;
        std::uint32_t left = to - from - 1;
        for (auto own = sizes.own.upper_bound(from);
             own != sizes.own.end() && own->first < to && pixels < widestGap; ++own, --left) {
            pixels += sizes.of(own->first);
        }
        return std::min(widestGap, pixels + std::int64_t{left} * std::max(sizes.others, 0));
    }

    bool hasGapBefore(std::size_t column) const {
        return used_[column] > (column == 0 ? 1 : used_[column - 1] + 1);
    }

    void head() {
        bytes_ += "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Korvo</title><style>"
                  "table{border-collapse:collapse;table-layout:fixed;width:0;"
                  "font:8pt sans-serif}"
                  "td{padding:0 2px;overflow:hidden;white-space:pre}"
                  "td.c{border:1px solid}</style></head><body>\n<table>";
        for (std::size_t i = 0; i < used_.size(); ++i) {
            if (hasGapBefore(i)) {
                column(between(columns_, i == 0 ? 0 : used_[i - 1], used_[i]));
            }
            column(columns_.of(used_[i]));
        }
        bytes_ += '\n';
    }

    void column(std::int64_t width) {
        bytes_ += "<col style=\"width:" + QByteArray::number(width) + "px\">";
    }

    void gap(std::uint32_t from, std::uint32_t to) {
        if (to > from + 1) {
            bytes_ += "<tr style=\"height:" + QByteArray::number(between(rows_, from, to)) +
                      "px\"></tr>\n";
        }
    }

    void emptyBefore(std::size_t column) { bytes_ += hasGapBefore(column) ? "<td></td>" : ""; }
    void empty(std::size_t column) {
        emptyBefore(column);
        bytes_ += "<td></td>";
    }

    void cell(const localSxlCell& cell) {
        const localSxlCellFormat& format = sheet_.cellFormat(cell);
        bytes_ += "<td class=\"c\" style=\"border-color:" + colorText(format.colorBorder) +
                  ";background:" + colorText(format.colorFon) +
                  ";color:" + colorText(format.colorText) + ';' + alignmentText(format) +
                  (cell.font == nullptr ? QByteArray() : fontText(*cell.font)) + "\">" +
                  (cell.image == nullptr || cell.image->isNull() ? QByteArray()
                                                                 : imageText(*cell.image)) +
                  escaped(cell.text) + "</td>";
    }

    const localSxlSheet& sheet_;
    const localSxlBandSizes rows_;
    const localSxlBandSizes columns_;
    std::vector<std::uint32_t> used_;  // columns with cells
    QByteArray bytes_;
};

}  // namespace

bool localSxlWriteHtml(const localSxlSheet& sheet, const std::string& file, std::u16string&) {
    QFile output(QFile::decodeName(QByteArray::fromStdString(file)));
    return output.open(QIODevice::WriteOnly) && Html(sheet).write(output);
}
