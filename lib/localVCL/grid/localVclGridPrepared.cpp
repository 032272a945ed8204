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

const localVclGridPrepared::Text& localVclGridPrepared::text(const QString& text, int room,
                                                             Qt::TextElideMode cut) {
    const std::pair key(text, std::pair(room, static_cast<int>(cut)));
    if (const Text* const kept = texts_.object(key)) {
        return *kept;
    }
    const QFontMetrics metrics(font_);
    QString line = onOneLine(text.left(longest));
    if (text.size() > longest) {
        line += u'…';
    }
    QString shown = line;
    if (metrics.horizontalAdvance(line) > room) {
        shown = metrics.elidedText(line, cut, std::max(room, 0));
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
