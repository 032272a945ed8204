#include "localVCL/font/localVclFont.h"

#include <QStringList>

#include <array>
#include <optional>

namespace {

struct FontRow {
    const char* family;
    int points;
    bool fixedPitch;
};

constexpr const char* sansSerif = "MS Sans Serif (Cyrilic)";
constexpr const char* arial = "Arial (Cyrilic)";
constexpr const char* courier = "Courier (Cyrilic)";

constexpr std::array<FontRow, localVclFontCount> table{{
    {sansSerif, 8, false},
    {arial, 8, false},
    {arial, 8, false},
    {courier, 10, true},
    {sansSerif, 8, false},
    {sansSerif, 8, false},
    {arial, 8, false},
}};

// What stands in for a family that the system does not have, the first that it does have. Without
// this a family of fixed pitch could be replaced by a proportional one.
void nameSubstitutes() {
    QFont::insertSubstitutions(
        sansSerif, {"MS Sans Serif", "Microsoft Sans Serif", "DejaVu Sans", "Liberation Sans"});
    QFont::insertSubstitutions(arial, {"Arial", "DejaVu Sans", "Liberation Sans"});
    QFont::insertSubstitutions(courier, {"Courier New", "DejaVu Sans Mono", "Liberation Mono"});
}

QFont made(const FontRow& row) {
    QFont font(row.family, row.points, QFont::Normal, false);
    if (row.fixedPitch) {
        font.setStyleHint(QFont::TypeWriter);
        font.setFixedPitch(true);
    }
    return font;
}

}  // namespace

const QFont& localVclFont(int number) {
    static std::array<std::optional<QFont>, localVclFontCount> fonts;
    const bool known = number >= 0 && number < localVclFontCount;
    const auto row = static_cast<std::size_t>(known ? number : 0);
    std::optional<QFont>& font = fonts[row];
    if (!font) {
        [[maybe_unused]] static const bool named = (nameSubstitutes(), true);
        font = made(table[row]);
    }
    return *font;
}
