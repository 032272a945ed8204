// A block of cells, marked with Shift and the keys that move the cursor, and copied.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QStringList>

#include <algorithm>

#include "localVCL/grid/localVclGrid200123.h"

namespace {

bool movesTheCursor(int key) {
    switch (key) {
        case Qt::Key_Down:
        case Qt::Key_Up:
        case Qt::Key_Right:
        case Qt::Key_Left:
        case Qt::Key_PageDown:
        case Qt::Key_PageUp:
        case Qt::Key_Home:
        case Qt::Key_End:
            return true;
        default:
            return false;
    }
}

bool isWithin(qint64 number, qint64 one, qint64 other) {
    return number >= std::min(one, other) && number <= std::max(one, other);
}

// A tab or a line end inside of a text would part it.
QString tabSeparated(QStringList texts) {
    for (QString& text : texts) {
        text.replace(u'\t', u' ').replace(u'\n', u' ').remove(u'\r');
    }
    return texts.join(u'\t');
}

}  // namespace

// Before the cursor moves: the first step with Shift begins a block there, one without ends it.
void localVclGrid200123::blockStep(Qt::KeyboardModifiers modifiers) {
    if (!modifiers.testFlag(Qt::ShiftModifier)) {
        clearBlock();
    } else {
        if (!blockStart_) {
            blockStart_ = Cell(rowNumber(mCurRow), columnOf(mCurCol));
        }
        update();
    }
}

void localVclGrid200123::blockKey(const QKeyEvent& event) {
    if (movesTheCursor(event.key())) {
        blockStep(event.modifiers());
    }
}

void localVclGrid200123::clearBlock() {
    if (blockStart_) {
        blockStart_.reset();
        update();
    }
}

bool localVclGrid200123::isMarked(const Cell& cell) const {
    return blockStart_ && isWithin(cell.first, blockStart_->first, rowNumber(mCurRow)) &&
           isWithin(cell.second, blockStart_->second, columnOf(mCurCol));
}

void localVclGrid200123::copy() {
    const Cell end(rowNumber(mCurRow), columnOf(mCurCol));
    const Cell start = blockStart_.value_or(end);
    if (isInLanguage()) {
        const auto whenFree = [this, start, end] {
            copyWork_.ask([this, start, end] { copyCells(start, end); });
        };
        // As all work of the language, never while a key is under way.
        QMetaObject::invokeMethod(this, whenFree, Qt::QueuedConnection);
    } else {
        copyCells(start, end);
    }
}

void localVclGrid200123::copyCells(const Cell& one, const Cell& other) {
    const int lastColumn = std::max(one.second, other.second);
    if (isCollecting_ || lastColumn >= static_cast<int>(columns.size())) {
        return;
    }
    const Watch watch(*this);
    const RowNumber lastRow = std::max(one.first, other.first);
    QStringList lines;
    isCollecting_ = true;
    for (RowNumber row = std::min(one.first, other.first); row <= lastRow; ++row) {
        const bool isThere = enterRow(row);
        QStringList texts;
        for (int column = std::min(one.second, other.second);
             watch.stands() && column <= lastColumn; ++column) {
            texts.append(isThere ? rowText(row, column) : QString());
        }
        if (!watch.stands()) {
            break;
        }
        lines.append(one == other ? texts.first() : tabSeparated(texts));
    }
    if (!watch.isGone()) {
        isCollecting_ = false;
        leaveRow();
        requestAgain();
    }
    if (watch.stands()) {
        QApplication::clipboard()->setText(lines.join(u'\n'));
    }
}
