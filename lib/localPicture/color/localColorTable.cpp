#include "localPicture/color/localColorTable.h"

#include <array>

#include "localInterpretatorUTF8/text/localCharacters.h"

namespace localColorTable {
namespace {

// Magenta stands here with the text and the number of white, beside a global colour of its own.
// Meant.
constexpr std::array table = std::to_array<localColorRow>({
    {u"white", u"Белый", 3, u"#ffffff", 0xffffff},
    {u"magenta", u"Пурпурный", 11, u"#ffffff", 0xffffff},
    {u"darkMagenta", u"Тёмно-пурпурный", 17, u"#800080", 0x800080},
    {u"red", u"Красный", 7, u"#ff0000", 0xff0000},
    {u"darkRed", u"Тёмно-красный", 13, u"#800000", 0x800000},
    {u"green", u"Зелёный", 8, u"#00ff00", 0x00ff00},
    {u"darkGreen", u"Тёмно-зелёный", 14, u"#008000", 0x008000},
    {u"blue", u"Синий", 9, u"#0000ff", 0x0000ff},
    {u"darkBlue", u"Тёмно-синий", 15, u"#000080", 0x000080},
    {u"cyan", u"Бирюзовый", 10, u"#00ffff", 0x00ffff},
    {u"darkCyan", u"Тёмно-бирюзовый", 16, u"#008080", 0x008080},
    {u"yellow", u"Жёлтый", 12, u"#ffff00", 0xffff00},
    {u"lightGray", u"Светло-серый", 6, u"#c0c0c0", 0xc0c0c0},
    {u"gray", u"Серый", 5, u"#a0a0a4", 0xa0a0a4},
    {u"darkGray", u"Тёмно-серый", 4, u"#808080", 0x808080},
    {u"black", u"Чёрный", 2, u"#000000", 0x000000},
});

constexpr int magenta = 11;
constexpr std::uint32_t magentaRgb = 0xff00ff;

const localColorRow* rowFind(std::u16string_view name) {
    const std::u16string wanted = toUpper(name);
    for (const localColorRow& row : table) {
        if (toUpper(row.english) == wanted || toUpper(row.russian) == wanted) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

std::span<const localColorRow> rows() {
    return table;
}

int globalColorFind(std::u16string_view name) {
    const localColorRow* const row = rowFind(name);
    return row == nullptr ? globalColorOfUnknown : row->globalColor;
}

std::uint32_t rgbFind(std::u16string_view name) {
    const localColorRow* const row = rowFind(name);
    if (row == nullptr) {
        return 0;
    }
    return row->globalColor == magenta ? magentaRgb : row->number;
}

}  // namespace localColorTable
