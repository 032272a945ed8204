// Texts laid out for painting, kept as long as there is room: laying a text out takes most of the
// time that drawing it takes.
#pragma once

#include <QCache>
#include <QFont>
#include <QStaticText>
#include <QString>

#include <utility>

class localVclGridPrepared {
public:
    struct Text {
        QStaticText laidOut;
        QSize size;
        bool isCut = false;  // was longer than its room, and ends in "..."
    };

    // A text on one line, no wider than so many pixels: its end is cut, or where it is the end
    // that tells most, its start. Holds until the next one is asked for.
    const Text& text(const QString& text, int room, Qt::TextElideMode cut = Qt::ElideRight);
    // The font of what is asked for from now on.
    void setFont(const QFont& font);

private:
    // More than a full screen of small cells has.
    static constexpr int mostKept = 8192;
    // A longer text is not measured as a whole: no cell shows so much.
    static constexpr qsizetype longest = 1000;

    QFont font_;
    QCache<std::pair<QString, std::pair<int, int>>, Text> texts_{mostKept};
};
