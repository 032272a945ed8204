// What the manager's windows look like and how they show their keys.
#pragma once

#include <QKeySequence>
#include <QString>

#include <functional>
#include <vector>

class QContextMenuEvent;
class QTableView;
class QWidget;

// Rows to be read, one of them current; nothing to be typed.
void localDbManagerLook(QTableView& view);
// As wide as the columns' texts, and none wider than half a window.
void localDbManagerColumnsFit(QTableView& view);

// The view above a line that names its keys; Esc closes the window around it.
QWidget* localDbManagerBody(QWidget* view, const QString& hint);

// Closes the window around it, in an MDI area the sub-window.
void localDbManagerClose(QWidget& widget);

struct localDbManagerAction {
    QString text;
    QKeySequence key;
    bool enabled = true;
    std::function<void()> act;
};
// Shows a menu of actions with their keys, which are the view's own matter.
void localDbManagerMenu(QTableView& view, const QContextMenuEvent& event,
                        std::vector<localDbManagerAction> actions);
