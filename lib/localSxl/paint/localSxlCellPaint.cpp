#include "localSxl/paint/localSxlCellPaint.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int inset = 2;                  // pixels around a cell's content
constexpr std::int32_t mostPoints = 500;  // of a font
constexpr qsizetype mostLetters = 4000;   // of a text

}  // namespace

QFont localSxlFontOf(const localSxlCell& cell, localSxlFontSize size) {
    QFont font = QGuiApplication::font();
    if (cell.font != nullptr) {
        if (!cell.font->family.empty()) {
            font.setFamily(QStringView(cell.font->family.view()).toString());
        }
        if (cell.font->size > 0) {
            font.setPointSize(std::min(cell.font->size, mostPoints));
        }
        if (const std::int32_t flags = cell.font->flags; flags >= 0) {
            const bool isStruckOut = (flags & localSxlCellFont::strikeout) != 0;
            font.setBold((flags & localSxlCellFont::bold) != 0);
            font.setItalic((flags & localSxlCellFont::italic) != 0);
            // One flag for both; that of the underline is not drawn. Meant.
            font.setStrikeOut(isStruckOut);
            font.setUnderline(isStruckOut);
        }
    }
    if (size == localSxlFontSize::pixels && font.pointSize() > 0) {
        font.setPixelSize(std::max(1, font.pointSize() * 96 / 72));
    }
    return font;
}

QColor localSxlColorOf(std::int32_t color) {
    return QColor::fromRgb(static_cast<QRgb>(color) & 0xffffffU);
}

int localSxlAlignmentOf(const localSxlCellFormat& format) {
    const int horizontal = format.alignmentH < 1 ? Qt::AlignLeft : format.alignmentH;
    const int vertical = format.alignmentV < 1 ? Qt::AlignVCenter : format.alignmentV;
    return (horizontal & Qt::AlignHorizontal_Mask) | (vertical & Qt::AlignVertical_Mask);
}

void localSxlCellPaint(QPainter& painter, const QRect& box, const localSxlSheet& sheet,
                       const localSxlCell& cell, localSxlFontSize size) {
    const localSxlCellFormat& format = sheet.cellFormat(cell);
    painter.setBrush(localSxlColorOf(format.colorFon));
    painter.setPen(localSxlColorOf(format.colorBorder));
    painter.drawRect(box.adjusted(-1, -1, -1, -1));
    const QRect inner = box.adjusted(inset, 1, -inset - 1, -1);
    const bool hasImage = cell.image != nullptr && !cell.image->isNull();
    if (inner.isEmpty() || (cell.text.empty() && !hasImage)) {
        return;
    }
    painter.save();
    painter.setClipRect(inner, Qt::IntersectClip);
    if (hasImage) {
        painter.drawImage(inner.topLeft(), *cell.image);
    }
    if (!cell.text.empty()) {
        painter.setFont(localSxlFontOf(cell, size));
        painter.setPen(localSxlColorOf(format.colorText));
        const QString text = QStringView(cell.text.view()).left(mostLetters).toString();
        painter.drawText(inner, localSxlAlignmentOf(format), text);
    }
    painter.restore();
}
