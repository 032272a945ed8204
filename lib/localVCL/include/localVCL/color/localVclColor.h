// Colours by name, for what is drawn. The table of names is localPicture/color/localColorTable.h.
#pragma once

#include <QColor>

#include <cstdint>
#include <string_view>

// The toolkit's colour of a name in Russian or English and any case; black for a name of no colour.
Qt::GlobalColor localVclColor(std::u16string_view name);

// Red * 65536 + green * 256 + blue.
std::uint32_t localVclColorNumber(const QColor& color);
