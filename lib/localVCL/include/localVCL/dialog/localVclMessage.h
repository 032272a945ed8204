// The message window: a text under a title, until a person or the clock closes it.
#pragma once

#include <QMessageBox>
#include <QString>

// Texts up to this many code units are shown whole; of a longer one the first 507 and "..." are
// shown, and the whole text under the box's details.
inline constexpr int localVclMessageLongest = 510;

// Runs a modal box. An empty title means the application's name; with `seconds` above 0 the box
// closes by itself after that time. On the windows' thread only.
void localVclMessageShow(const QString& text, const QString& title, int seconds = 0,
                         QMessageBox::Icon icon = QMessageBox::Information);
