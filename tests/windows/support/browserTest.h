// Clicks on links in a browser, by mouse at the place where they stand.
#pragma once

#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>

namespace browserTest {

// The place of the first link with this text, in the view; null when there is none. Scrolls it into
// view.
inline QPoint placeOfLink(QTextBrowser& browser, const QString& text) {
    QTextCursor cursor(browser.document());
    while (!(cursor = browser.document()->find(text, cursor, QTextDocument::FindCaseSensitively))
                .isNull()) {
        if (!cursor.charFormat().anchorHref().isEmpty()) {
            QTextCursor middle(browser.document());
            middle.setPosition((cursor.selectionStart() + cursor.selectionEnd()) / 2);
            browser.setTextCursor(middle);
            browser.ensureCursorVisible();
            return browser.cursorRect(middle).center();
        }
    }
    return {};
}

// False when there is no such link.
inline bool clickLink(QTextBrowser& browser, const QString& text) {
    const QPoint place = placeOfLink(browser, text);
    if (place.isNull() || browser.anchorAt(place).isEmpty()) {
        return false;
    }
    QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, place);
    return true;
}

}  // namespace browserTest
