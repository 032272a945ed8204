// What a grid tells of itself: its keys in a menu, and texts that do not fit their cells in a hint.
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeySequence>
#include <QMenu>
#include <QToolTip>

#include "grid/localVclGridPrepared.h"
#include "localVCL/grid/localVclGrid200123.h"

QList<localVclGrid200123::Key> localVclGrid200123::keys() const {
    return {
        {tr("First row"), Qt::CTRL | Qt::Key_Home},
        {tr("Last row"), Qt::CTRL | Qt::Key_End},
        {tr("Page up"), Qt::Key_PageUp},
        {tr("Page down"), Qt::Key_PageDown},
        {tr("Copy"), Qt::CTRL | Qt::Key_C},
        {tr("Mark a block"), Qt::SHIFT | Qt::Key_Down},
        {tr("Grid layout..."), Qt::Key_F12},
    };
}

void localVclGrid200123::contextMenuEvent(QContextMenuEvent* event) {
    openKeysMenu(event->reason() == QContextMenuEvent::Mouse
                     ? event->globalPos()
                     : mapToGlobal(cellRectangle(mCurRow, mCurCol).bottomLeft()));
}

void localVclGrid200123::openKeysMenu(const QPoint& place) {
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Key& key : keys()) {
        const QKeySequence sequence(key.key);
        // Behind a tab the toolkit shows it as the key, without making it one.
        menu->addAction(key.words + u'\t' + sequence.toString(QKeySequence::NativeText), this,
                        [this, pressed = key.key] {
                            QKeyEvent event(QEvent::KeyPress, pressed.key(),
                                            pressed.keyboardModifiers());
                            QCoreApplication::sendEvent(this, &event);
                        });
    }
    menu->popup(place);
}

bool localVclGrid200123::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            blockKey(*static_cast<QKeyEvent*>(event));
            break;
        case QEvent::ToolTip: {
            const auto* const help = static_cast<QHelpEvent*>(event);
            QToolTip::showText(help->globalPos(), cutTextAt(help->pos()), this);
            return true;
        }
        case QEvent::ScreenChangeInternal:
            sizesByFont();
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

QString localVclGrid200123::cutTextAt(const QPoint& place) {
    const auto row = static_cast<unsigned>(place.y() / rowStep());
    const unsigned column = columnAt(place.x());
    const bool isHead = place.x() < fixedColWidth;
    if (row == 0 || (column == 0 && !isHead)) {
        return {};
    }
    const QString text = shown_.value(Cell(rowNumber(row), columnOf(column))).text;
    const int room = cellRectangle(row, column).width() - 2 * cellMargin;
    constexpr qsizetype longest = 2000;
    return prepared_->text(text, room).isCut ? text.left(longest).toHtmlEscaped() : QString();
}
