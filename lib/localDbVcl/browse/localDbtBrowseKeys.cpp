// What a person does with a browse: keys, the mouse, choosing a record.
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QPointer>

#include "browse/localDbtBrowsePosition.h"
#include "localDbVcl/browse/localDbtBrowseWidget200123.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

Qt::KeyboardModifiers modifiersOf(const QKeyEvent& event) {
    // A key of the number block is what its other one is.
    return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool opensCell(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = modifiersOf(event);
    return isReturn(event) ? held == Qt::NoModifier || held == Qt::ShiftModifier
                           : event.key() == Qt::Key_F4 && held == Qt::NoModifier;
}

}  // namespace

void localDbtBrowseWidget200123::keyPressEvent(QKeyEvent* event) {
    if (!browseKey(*event)) {
        localVclGrid200123::keyPressEvent(event);
    }
}

bool localDbtBrowseWidget200123::browseKey(const QKeyEvent& event) {
    const bool hasControl = modifiersOf(event).testFlag(Qt::ControlModifier);
    if (selectMode && isReturn(event) && selectKey()) {
        return true;
    }
    if (selectMode && event.key() == Qt::Key_Escape && searchText.isEmpty()) {
        windowClose();
        return true;
    }
    if (opensCell(event)) {
        cellEdit(mCurRow, mCurCol);
        return true;
    }
    if (hasControl && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) {
        return sortKey(event.key() - Qt::Key_0);
    }
    const auto press = [&](void (localDbtBrowsePosition::*act)()) {
        moveByKey([position = position_, act] { ((*position).*act)(); });
        return true;
    };
    switch (event.key()) {
        case Qt::Key_Down:
            return press(&localDbtBrowsePosition::down);
        case Qt::Key_Up:
            return press(&localDbtBrowsePosition::up);
        case Qt::Key_PageDown:
            return press(&localDbtBrowsePosition::pageDown);
        case Qt::Key_PageUp:
            return press(hasControl ? &localDbtBrowsePosition::toStart
                                    : &localDbtBrowsePosition::pageUp);
        case Qt::Key_Home:
            return hasControl && press(&localDbtBrowsePosition::toStart);
        case Qt::Key_End:
            return hasControl && press(&localDbtBrowsePosition::toEnd);
        default:
            return false;
    }
}

// Ctrl+1 is the first column, Ctrl+0 the tenth.
bool localDbtBrowseWidget200123::sortKey(int digit) {
    constexpr int tenth = 9;
    const int column = digit == 0 ? tenth : digit - 1;
    traceLine({u"colWithIndexWichSelect=", localVclText(QString::number(column))}, "keyPressEvent");
    if (const std::u16string name = idxNameOfColumn(static_cast<std::size_t>(column));
        !name.empty()) {
        idxSet(name);
    }
    return true;
}

// Each line that is written lets events in.
bool localDbtBrowseWidget200123::selectKey() {
    const QPointer<localDbtBrowseWidget200123> self(this);
    const qint64 id = getId();
    traceLine({u"id = ", localVclText(QString::number(id))}, "keyPressEvent");
    if (id >= 1) {
        traceLine({u"emit this->idSelectedSignal(", localVclText(QString::number(id)), u")"},
                  "keyPressEvent");
        if (self != nullptr) {
            choose(id);
        }
        traceLine(u"EMITED ", "keyPressEvent");
    }
    return self == nullptr || id >= 1;
}

void localDbtBrowseWidget200123::choose(qint64 id) {
    const QPointer<localDbtBrowseWidget200123> self(this);
    windowClose();
    if (self != nullptr) {
        emit idSelectedSignal(id);
    }
}

void localDbtBrowseWidget200123::windowClose() {
    QWidget* window = this;
    while (!window->isWindow() && qobject_cast<QMdiSubWindow*>(window) == nullptr) {
        window = window->parentWidget();
    }
    window->close();
}

void localDbtBrowseWidget200123::cellEdit(unsigned row, unsigned column) {
    traceLine(localVclText(QStringLiteral("cellEdit(%1, %2) from").arg(row).arg(column)),
              "cellEdit");
    localVclGrid200123::cellEdit(row, column);
}

void localDbtBrowseWidget200123::mousePressEvent(QMouseEvent* event) {
    localVclGrid200123::mousePressEvent(event);
    // Pinned rows are no rows of the table.
    move([position = position_, row = mCurRow] { position->toScreenRow(row); });
}

void localDbtBrowseWidget200123::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    const bool isOnRow = event->position().toPoint().y() >= cellRectangle(headRows, 0).top();
    if (!isOnRow || event->button() != Qt::LeftButton) {
        return;
    }
    if (!selectMode || !selectKey()) {
        cellEdit(mCurRow, mCurCol);
    }
}

QList<localVclGrid200123::Key> localDbtBrowseWidget200123::keys() const {
    QList<Key> all = localVclGrid200123::keys();
    if (selectMode) {
        all.prepend({tr("Choose"), Qt::Key_Return});
    }
    constexpr std::size_t digits = 10;
    for (std::size_t i = 0; i < columns.size() && i < digits; ++i) {
        if (!idxNameOfColumn(i).empty()) {
            const auto digit = static_cast<Qt::Key>(Qt::Key_0 + static_cast<int>((i + 1) % digits));
            all.append({tr("Sort by [%1]").arg(columns[i]->caption), Qt::CTRL | digit});
        }
    }
    return all;
}
