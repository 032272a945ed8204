#include "localSxl/sheet/localSxlTable.h"

#include <algorithm>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

constexpr std::int32_t headerBackground = 0xe4e7ec;
constexpr std::int32_t headerAlignment = 4;  // centred
constexpr std::int32_t numberAlignment = 2;  // right
// In pixels: what a letter takes, and the width of columns.
constexpr std::int32_t letterWidth = 8;
constexpr std::int32_t narrowest = 50;
constexpr std::int32_t widest = 400;
constexpr std::size_t rowsMeasured = 200;

}  // namespace

void localSxlFillFromTable(localSxlSheet& sheet, const localValueTable& table) {
    for (std::size_t column = 0; column < table.columnsCount(); ++column) {
        const localSxlPlace head{1, static_cast<std::uint32_t>(column + 1)};
        const localText name = table.columnName(column + 1);
        sheet.cellTextSet(head, name);
        sheet.cellFontSet(head, {}, 0, localSxlCellFont::bold);
        sheet.cellColorSet(head, {.background = headerBackground});
        sheet.cellAlignmentSet(head, headerAlignment, localSxlUnchanged);
        std::size_t longest = name.size() + 2;
        for (std::size_t row = 0; row < std::min(rowsMeasured, table.rowsCount()); ++row) {
            longest = std::max(longest, table.cell(row, column).toString().size());
        }
        const auto letters = static_cast<std::int32_t>(std::min<std::size_t>(longest, widest));
        sheet.columnWidthSet(head.column, std::clamp(letters * letterWidth, narrowest, widest));
    }
    for (std::size_t row = 0; row < table.rowsCount(); ++row) {
        for (std::size_t column = 0; column < table.columnsCount(); ++column) {
            const localValueDescription& value = table.cell(row, column);
            const localSxlPlace place{static_cast<std::uint32_t>(row + 2),
                                      static_cast<std::uint32_t>(column + 1)};
            sheet.cellTextSet(place, value.toString());
            if (value.type == localValueTypeNUMBER) {
                sheet.cellAlignmentSet(place, numberAlignment, localSxlUnchanged);
            }
        }
    }
}
