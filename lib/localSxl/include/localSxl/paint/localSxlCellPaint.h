// How a cell looks, on the screen and on paper.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>

#include "localSxl/sheet/localSxlSheet.h"

class QPainter;
class QRect;

// Sizes of fonts are points of the screen, or as many pixels as those have at 96 to the inch.
enum class localSxlFontSize { points, pixels };

// The font that a cell is drawn in. Needs an application.
QFont localSxlFontOf(const localSxlCell& cell, localSxlFontSize size = localSxlFontSize::points);
QColor localSxlColorOf(std::int32_t color);
// The toolkit's flags of a cell's alignment.
int localSxlAlignmentOf(const localSxlCellFormat& format);

// Draws a cell into its box, which takes its borders in; no more of a very long text than any box
// shows.
void localSxlCellPaint(QPainter& painter, const QRect& box, const localSxlSheet& sheet,
                       const localSxlCell& cell, localSxlFontSize size);
