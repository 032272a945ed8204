// The fonts of the visual layer, by number.
#pragma once

#include <QFont>

// The shared font of a number from 0 to 6, made on first use; any other number means 0. All are of
// normal weight and upright; number 3 is the fixed-pitch one. The families are named as such
// systems name their Cyrillic fonts; where they are missing, the nearest ones with Cyrillic letters
// stand in. Needs an application; on the windows' thread only.
const QFont& localVclFont(int number);

// How many fonts there are.
inline constexpr int localVclFontCount = 7;
