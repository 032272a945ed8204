// The window operation: any widget gets a window, of its own or inside the application's MDI area.
//
// What needs more of its window than a place - actions in the tool bar, a word when it closes -
// derives from localVclWindowContent as well.
#pragma once

#include <QList>
#include <QPoint>
#include <QString>

#include <optional>

class QAction;
class QMdiArea;
class QWidget;
class localValueList;

class localVclWindowContent {
public:
    virtual ~localVclWindowContent() = default;
    // What stands in the window's tool bar, in this order. The content keeps owning the actions.
    virtual QList<QAction*> windowActions() { return {}; }
    // Whether the window may close now; may ask a person.
    virtual bool windowMayClose() { return true; }
};

struct localVclWindowParameters {
    QString title;
    bool modal = false;
    QString iconAsBase64;  // the program's own icon when it holds no picture
    std::optional<QPoint> place =
        {};  // of the frame's corner on the screen; else the system chooses
};

// The parameters in a list: "title" (string), "modal" (number, above 0 means modal), "iconAsBase64"
// (string). Keys that are missing, or hold a value of another type, leave the default.
localVclWindowParameters localVclWindowParametersOf(const localValueList& list);

// Shows a widget that has no window yet, in the size it has, and gives the window: a new
// localMainWindow, or a sub-window where the application has an MDI area. The window owns the
// widget and both go when it is closed. On the windows' thread only.
QWidget* localVclWindowShow(QWidget* widget, const localVclWindowParameters& parameters);
QWidget* localVclWindowShow(QWidget* widget, const localValueList& parameters);

// The MDI area and the message panel, found by the object names "localMdiArea" and
// "localMessagePanel" in the application's top-level windows. Null where there is none.
QMdiArea* localMdiAreaFind();
QWidget* localMessagePanelFind();
