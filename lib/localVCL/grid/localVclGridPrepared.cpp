#include "grid/localVclGridPrepared.h"

#include <QFontMetrics>

#include <algorithm>

namespace {

// The text as it stands on one line: what would end the line is a blank.
QString onOneLine(const QString& text) {
    QString line = text;
    for (QChar& letter : line) {
        const bool endsLine = letter.category() == QChar::Other_Control ||
                              letter == QChar::LineSeparator || letter == QChar::ParagraphSeparator;
        if (endsLine) {
            letter = u' ';
        }
    }
    return line;
}

}  // namespace

const localVclGridPrepared::Text& localVclGridPrepared::text(const QString& text, int room) {
    const QPair<QString, int> key(text, room);
    if (const Text* const kept = texts_.object(key)) {
        return *kept;
    }
    const QFontMetrics metrics(font_);
    const QString line = onOneLine(text.left(longest));
    QString shown = line;
    if (text.size() > longest || metrics.horizontalAdvance(line) > room) {
        shown = metrics.elidedText(line + u'…', Qt::ElideRight, std::max(room, 0));
        if (metrics.horizontalAdvance(shown) > room) {
            shown.clear();
        }
    }
    auto* const made = new Text;
    made->isCut = shown != line || text.size() > longest;
    made->laidOut.setTextFormat(Qt::PlainText);
    made->laidOut.setText(shown);
    made->laidOut.prepare({}, font_);
    made->size = QSize(metrics.horizontalAdvance(shown), metrics.height());
    texts_.insert(key, made);
    return *made;
}

void localVclGridPrepared::setFont(const QFont& font) {
    font_ = font;
    texts_.clear();
}
