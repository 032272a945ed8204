// What a person does with a grid: keys, the mouse, the wheel.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "localVCL/grid/localVclGrid200123.h"

namespace {

bool isModifierKey(int key) {
    switch (key) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
            return true;
        default:
            return false;
    }
}

// What a key types, empty for keys that type no letter.
QString typedText(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const bool hasControl = held.testFlag(Qt::ControlModifier);
    const bool hasAlt = held.testFlag(Qt::AltModifier);
    // Control and Alt together are one key on some keyboards, and type letters.
    const bool isCommand = hasControl != hasAlt || held.testFlag(Qt::MetaModifier);
    const QString text = event.text();
    const bool isPrintable =
        std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isPrint(); });
    return isCommand || !isPrintable ? QString() : text;
}

}  // namespace

void localVclGrid200123::keyPressEvent(QKeyEvent* event) {
    const unsigned rows = visibleRows();
    switch (event->key()) {
        case Qt::Key_Down:
            if (hasRow(mCurRow + 1)) {
                if (mCurRow + 1 < rows) {
                    setCurrentCell(mCurRow + 1, mCurCol);
                } else {
                    scrollRowDown();
                }
            }
            break;
        case Qt::Key_Up:
            if (mCurRow > headRows) {
                setCurrentCell(mCurRow - 1, mCurCol);
            } else {
                scrollRowUp();
            }
            break;
        case Qt::Key_Right:
            moveRight();
            break;
        case Qt::Key_Left:
            moveLeft();
            break;
        case Qt::Key_PageDown:
            pageDown();
            break;
        case Qt::Key_PageUp:
            pageUp();
            break;
        case Qt::Key_Home:
            if (event->modifiers().testFlag(Qt::ControlModifier)) {
                goToStart();
            }
            break;
        case Qt::Key_End:
            if (event->modifiers().testFlag(Qt::ControlModifier)) {
                goToEnd();
            }
            break;
        case Qt::Key_F12:
            openLayoutDialog();
            break;
        default:
            // Whatever the desktop has for it, Ctrl+C on all keyboards.
            if (event->matches(QKeySequence::Copy)) {
                copy();
            }
            break;
    }
    searchTextKey(*event);
}

// The word that is typed to search for: printable letters alone. A key without a text ends it.
void localVclGrid200123::searchTextKey(const QKeyEvent& event) {
    const QString typed = typedText(event);
    if (!typed.isEmpty()) {
        setSearchText(searchText + typed);
    } else if (searchText.isEmpty() || isModifierKey(event.key())) {
        // Shift for a capital letter does not end the word.
        return;
    } else if (event.key() == Qt::Key_Backspace) {
        setSearchText(searchText.chopped(1));
    } else if (event.key() == Qt::Key_Escape || event.text().isEmpty()) {
        setSearchText({});
    }
}

void localVclGrid200123::setSearchText(const QString& text) {
    searchText = text;
    refresh();
    if (!text.isEmpty()) {
        // The grid may go while it looks.
        find(text);
    }
}

void localVclGrid200123::moveRight() {
    if (mCurCol + firstCol + 1 >= columns.size() + fixedCols) {
        return;
    }
    const QRect next = cellRectangle(mCurRow, mCurCol + 1);
    if (next.right() < width()) {
        setCurrentCell(mCurRow, mCurCol + 1);
    } else if (firstCol + 1 < columns.size()) {
        showColumnsFrom(firstCol + 1);
    }
}

void localVclGrid200123::moveLeft() {
    if (mCurCol > fixedCols) {
        setCurrentCell(mCurRow, mCurCol - 1);
    } else if (firstCol > 0) {
        showColumnsFrom(firstCol - 1);
    }
}

void localVclGrid200123::showColumnsFrom(unsigned column) {
    firstCol = column;
    setCurrentCell(mCurRow, mCurCol);
    reposition();
    refresh();
}

void localVclGrid200123::pageDown() {
    unsigned last = std::max(visibleRows(), headRows + 1) - 1;
    while (last > headRows && !hasRow(last)) {
        --last;
    }
    if (mCurRow != last) {
        setCurrentCell(last, mCurCol);
    } else if (rows() != nullptr) {
        scrollRows(static_cast<int>(last - headRows));
    }
}

void localVclGrid200123::pageUp() {
    if (mCurRow != headRows) {
        setCurrentCell(headRows, mCurCol);
    } else if (rows() != nullptr) {
        scrollRows(-static_cast<int>(std::max(visibleRows(), headRows + 2) - 1 - headRows));
    }
}

void localVclGrid200123::scrollRows(int count) {
    RowNumber first = firstRow + count;
    if (rows() != nullptr) {
        const RowNumber inSight = std::max(visibleRows(), headRows + 1) - headRows;
        first = std::min(first, std::max(rows()->count() - inSight, firstRow));
    }
    first = std::max<RowNumber>(first, 0);
    if (first != firstRow) {
        firstRow = first;
        setCurrentCell(mCurRow, mCurCol);
        refresh();
    }
}

void localVclGrid200123::goToStart() {
    firstRow = 0;
    setCurrentCell(headRows, mCurCol);
    refresh();
}

void localVclGrid200123::goToEnd() {
    if (rows() == nullptr || rows()->count() == 0) {
        return;
    }
    const RowNumber inSight = std::max(visibleRows(), headRows + 1) - headRows;
    const RowNumber count = rows()->count();
    firstRow = std::max<RowNumber>(count - inSight, 0);
    setCurrentCell(static_cast<unsigned>(count - 1 - firstRow) + headRows, mCurCol);
    refresh();
}

void localVclGrid200123::mousePressEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const auto row = static_cast<unsigned>(std::max(0, at.y() / rowStep()));
    if (row != 0 && hasRow(row)) {
        blockStep(event->modifiers());
        const unsigned column = columnAt(at.x());
        setCurrentCell(row, column == 0 ? mCurCol : column);
    }
    refresh();
}

// The column on the screen that stands at a place, 0 for the row head and behind the last.
unsigned localVclGrid200123::columnAt(int x) const {
    int right = static_cast<int>(fixedCols) * fixedColWidth;
    if (x < right) {
        return 0;
    }
    for (unsigned column = fixedCols; column <= lastColumn(); ++column) {
        right += cellRectangle(0, column).width() + colGap;
        if (x < right) {
            return column;
        }
    }
    return 0;
}

void localVclGrid200123::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120;
    wheel_ += event->angleDelta();
    const QPoint notches(wheel_.x() / notch, wheel_.y() / notch);
    wheel_ -= notches * notch;
    event->accept();
    for (int i = 0; i < std::abs(notches.x()); ++i) {
        notches.x() > 0 ? moveLeft() : moveRight();
    }
    if (notches.y() != 0) {
        // The grid may go with it, when it reads rows.
        scrollRows(-notches.y() * QApplication::wheelScrollLines());
    }
}

bool localVclGrid200123::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        return this->event(event);
    }
    return QObject::eventFilter(watched, event);
}
