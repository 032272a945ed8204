#include "manager/localDbManagerLook.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// In pixels.
constexpr int rowSpace = 8;  // above and below a row's text together
constexpr int cellSpace = 12;
constexpr int widestColumn = 360;
constexpr int hintMargin = 6;

}  // namespace

void localDbManagerLook(QTableView& view) {
    view.setAlternatingRowColors(true);
    view.setShowGrid(false);
    view.setWordWrap(false);
    view.setFrameShape(QFrame::NoFrame);
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setSelectionMode(QAbstractItemView::SingleSelection);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view.setTabKeyNavigation(false);
    view.horizontalHeader()->setHighlightSections(false);
    view.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    view.horizontalHeader()->setStretchLastSection(true);
    QHeaderView& rows = *view.verticalHeader();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(view.fontMetrics().height() + rowSpace);
    rows.setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void localDbManagerColumnsFit(QTableView& view) {
    constexpr int rowsLookedAt = 200;
    view.horizontalHeader()->setResizeContentsPrecision(rowsLookedAt);
    view.resizeColumnsToContents();
    for (int i = 0; i < view.model()->columnCount(); ++i) {
        view.setColumnWidth(i, std::min(view.columnWidth(i) + cellSpace, widestColumn));
    }
}

QWidget* localDbManagerBody(QWidget* view, const QString& hint) {
    auto* const body = new QWidget;
    auto* const layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(view);
    auto* const line = new QLabel(hint);
    line->setObjectName(QStringLiteral("hint"));
    line->setContentsMargins(hintMargin, hintMargin / 2, hintMargin, hintMargin / 2);
    line->setForegroundRole(QPalette::PlaceholderText);
    // A narrow window cuts it.
    line->setMinimumWidth(1);
    layout->addWidget(line);
    body->setFocusProxy(view);
    auto* const escape = new QShortcut(Qt::Key_Escape, body);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, body, [body] { localDbManagerClose(*body); });
    return body;
}

void localDbManagerClose(QWidget& widget) {
    QWidget* closed = &widget;
    while (!closed->isWindow() && qobject_cast<QMdiSubWindow*>(closed) == nullptr) {
        closed = closed->parentWidget();
    }
    closed->close();
}

void localDbManagerMenu(QTableView& view, const QContextMenuEvent& event,
                        std::vector<localDbManagerAction> actions) {
    auto* const menu = new QMenu(&view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (localDbManagerAction& action : actions) {
        QAction* const shown = menu->addAction(action.text);
        shown->setShortcut(action.key);
        shown->setShortcutVisibleInContextMenu(true);
        shown->setEnabled(action.enabled);
        // Behind the menu's end, since a dialog may follow.
        QObject::connect(shown, &QAction::triggered, &view, std::move(action.act),
                         Qt::QueuedConnection);
    }
    // The Menu key opens it at the current row.
    const QRect row = view.visualRect(view.currentIndex());
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKey ? view.viewport()->mapToGlobal(row.bottomLeft()) : event.globalPos());
}
