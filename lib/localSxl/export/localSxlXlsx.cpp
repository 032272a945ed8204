// XLSX, by the library libxlsxwriter.
#include <xlsxwriter.h>

#include <QBuffer>
#include <QString>

#include <algorithm>
#include <map>
#include <tuple>

#include "export/localSxlFormats.h"
#include "export/localSxlNumberOfText.h"
#include "localSxl/paint/localSxlBands.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

constexpr double pointsAPixel = 0.75;
constexpr int mostShownDecimals = 9;   // more is what STRING writes of a binary fraction
constexpr double largestFont = 409.0;  // of the format
constexpr qsizetype longestFamily = 31;

struct Look {
    localSxlCellFormat format;
    std::u16string family;
    std::int32_t size = 0;
    std::int32_t flags = 0;
    std::string numberFormat;  // empty for a text

    auto key() const {
        return std::tie(format.alignmentH, format.alignmentV, format.colorBorder, format.colorFon,
                        format.colorText, family, size, flags, numberFormat);
    }
    bool operator<(const Look& other) const { return key() < other.key(); }
};

lxw_color_t colorOf(std::int32_t color) {
    return static_cast<lxw_color_t>(color) & 0xffffffU;
}

std::string numberFormatOf(const localSxlTextNumber& number) {
    if (number.decimals > mostShownDecimals) {
        return "General";
    }
    const std::string whole = number.isGrouped ? "#,##0" : "0";
    return number.decimals == 0
               ? whole
               : whole + "." + std::string(static_cast<std::size_t>(number.decimals), '0');
}

class Book {
public:
    Book(const localSxlSheet& sheet, const std::string& file)
        : sheet_(sheet), book_(workbook_new(file.c_str())) {}
    Book(const Book&) = delete;
    Book& operator=(const Book&) = delete;

    bool write(std::u16string& fault) {
        if (book_ == nullptr) {
            return false;
        }
        page_ = workbook_add_worksheet(book_, nullptr);
        sizes();
        lxw_error error = LXW_NO_ERROR;
        localSxlEachCell(sheet_.cells(), {1, 1}, sheet_.cells().lastRow(),
                         [&](const localSxlCell& shown) {
                             error = error == LXW_NO_ERROR ? cell(shown) : error;
                         });
        if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) {
            fault = u"В этом формате текст ячейки не длиннее 32767 знаков";
        }
        const lxw_error closed = workbook_close(book_);
        return error == LXW_NO_ERROR && closed == LXW_NO_ERROR;
    }

private:
    void sizes() {
        const localSxlBandSizes rows = localSxlRowSizes(sheet_);
        worksheet_set_default_row(page_, std::max(rows.others, 1) * pointsAPixel, LXW_FALSE);
        for (const auto& [row, height] : rows.own) {
            if (row != 0 && row <= localSxlMostRows) {
                worksheet_set_row_pixels(page_, row - 1, static_cast<std::uint32_t>(rows.of(row)),
                                         nullptr);
            }
        }
        const localSxlBandSizes columns = localSxlColumnSizes(sheet_);
        const auto columnsSet = [this](std::uint32_t first, std::uint32_t last, int width) {
            worksheet_set_column_pixels(page_, static_cast<lxw_col_t>(first - 1),
                                        static_cast<lxw_col_t>(last - 1),
                                        static_cast<std::uint32_t>(width), nullptr);
        };
        columnsSet(1, localSxlMostColumns, std::max(columns.others, 1));
        for (const auto& [column, width] : columns.own) {
            if (column != 0 && column <= localSxlMostColumns) {
                columnsSet(column, column, columns.of(column));
            }
        }
    }

    lxw_error cell(const localSxlCell& cell) {
        const lxw_row_t row = cell.place.row - 1;
        const auto column = static_cast<lxw_col_t>(cell.place.column - 1);
        const auto number = localSxlNumberOfText(cell.text);
        Look look;
        look.format = sheet_.cellFormat(cell);
        if (cell.font != nullptr) {
            look.family = cell.font->family.string();
            look.size = cell.font->size;
            look.flags = cell.font->flagsInText();
        }
        look.numberFormat = number ? numberFormatOf(*number) : std::string();
        lxw_format* const format = formatOf(look);
        if (cell.image != nullptr && !cell.image->isNull()) {
            image(*cell.image, row, column);
        }
        if (cell.text.empty()) {
            return worksheet_write_blank(page_, row, column, format);
        }
        if (number) {
            return worksheet_write_number(page_, row, column, number->value, format);
        }
        const QByteArray text = QStringView(cell.text.view()).toUtf8();
        return worksheet_write_string(page_, row, column, text.constData(), format);
    }

    void image(const QImage& image, lxw_row_t row, lxw_col_t column) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        if (image.save(&buffer, "PNG")) {
            worksheet_insert_image_buffer(page_, row, column,
                                          reinterpret_cast<const unsigned char*>(png.constData()),
                                          static_cast<std::size_t>(png.size()));
        }
    }

    lxw_format* formatOf(const Look& look) {
        const auto [place, isNew] = formats_.try_emplace(look, nullptr);
        if (isNew) {
            place->second = made(look);
        }
        return place->second;
    }

    lxw_format* made(const Look& look) {
        lxw_format* const format = workbook_add_format(book_);
        const localSxlCellFormat& cell = look.format;
        format_set_align(format, (cell.alignmentH & 4) != 0   ? LXW_ALIGN_CENTER
                                 : (cell.alignmentH & 2) != 0 ? LXW_ALIGN_RIGHT
                                                              : LXW_ALIGN_LEFT);
        format_set_align(format, (cell.alignmentV & 32) != 0   ? LXW_ALIGN_VERTICAL_TOP
                                 : (cell.alignmentV & 64) != 0 ? LXW_ALIGN_VERTICAL_BOTTOM
                                                               : LXW_ALIGN_VERTICAL_CENTER);
        format_set_border(format, LXW_BORDER_THIN);
        format_set_border_color(format, colorOf(cell.colorBorder));
        format_set_pattern(format, LXW_PATTERN_SOLID);
        format_set_bg_color(format, colorOf(cell.colorFon));
        format_set_font_color(format, colorOf(cell.colorText));
        if (!look.family.empty()) {
            const QByteArray family = QStringView(look.family).left(longestFamily).toUtf8();
            format_set_font_name(format, family.constData());
        }
        if (look.size > 0) {
            format_set_font_size(format, std::min<double>(look.size, largestFont));
        }
        if ((look.flags & localSxlCellFont::bold) != 0) {
            format_set_bold(format);
        }
        if ((look.flags & localSxlCellFont::italic) != 0) {
            format_set_italic(format);
        }
        if ((look.flags & localSxlCellFont::strikeout) != 0) {
            format_set_font_strikeout(format);
            format_set_underline(format, LXW_UNDERLINE_SINGLE);
        }
        if (!look.numberFormat.empty()) {
            format_set_num_format(format, look.numberFormat.c_str());
        }
        return format;
    }

    const localSxlSheet& sheet_;
    lxw_workbook* book_;
    lxw_worksheet* page_ = nullptr;
    std::map<Look, lxw_format*> formats_;
};

}  // namespace

bool localSxlWriteXlsx(const localSxlSheet& sheet, const std::string& file, std::u16string& fault) {
    return localSxlWithinBounds(sheet, fault) && Book(sheet, file).write(fault);
}
