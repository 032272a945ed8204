#include "localVCL/window/localVclWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>

#include <optional>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localMainWindow.h"

namespace {

constexpr int toolBarHeight = 16;    // pixels
constexpr int subWindowMargin = 11;  // how much a sub-window is wider and higher than its widget

// The plain widget around tool bar and scroll area in a sub-window.
class SubWindowContent final : public QWidget {
public:
    explicit SubWindowContent(QWidget* shown) : shown_(shown) {}

protected:
    void closeEvent(QCloseEvent* event) override {
        auto* const content = dynamic_cast<localVclWindowContent*>(shown_.data());
        event->setAccepted(content == nullptr || content->windowMayClose());
    }

private:
    QPointer<QWidget> shown_;
};

template <typename Widget>
Widget* findByName(const QString& name) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name) {
            if (auto* const found = qobject_cast<Widget*>(window)) {
                return found;
            }
        }
        if (auto* const found = window->findChild<Widget*>(name)) {
            return found;
        }
    }
    return nullptr;
}

QToolBar* toolBarFor(QWidget* widget) {
    auto* const bar = new QToolBar(QStringLiteral("form"));
    bar->setObjectName(QStringLiteral("form"));
    bar->setAttribute(Qt::WA_DeleteOnClose);
    bar->setIconSize(QSize(16, 16));
    bar->setMovable(false);
    if (auto* const content = dynamic_cast<localVclWindowContent*>(widget)) {
        bar->addActions(content->windowActions());
    }
    // Buttons lose their borders, or icons of the bar's full height would be cut.
    bar->setStyleSheet(QStringLiteral("QToolBar { border: 0; margin: 0; padding: 0; spacing: 2px }"
                                      "QToolButton { border: 0; margin: 0; padding: 0 }"));
    bar->setFixedHeight(toolBarHeight);
    bar->resize(widget->width(), toolBarHeight);
    return bar;
}

QIcon iconOf(const localVclWindowParameters& parameters) {
    const QPixmap picture = localVclPixmapFromBase64(parameters.iconAsBase64);
    return picture.isNull() ? localVclProgramIcon() : QIcon(picture);
}

QWidget* showInMainWindow(QWidget* widget, QToolBar* bar,
                          const localVclWindowParameters& parameters) {
    const QSize size = widget->size();
    auto* const window = new localMainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->addToolBar(bar);
    window->setWindowIcon(iconOf(parameters));
    window->setWindowTitle(parameters.title);
    window->setCentralWidget(widget);
    // The tool bar takes nothing away from the widget.
    const QSize room = window->screen()->availableSize();
    window->resize((size + QSize(0, toolBarHeight)).boundedTo(room));
    if (parameters.modal) {
        window->setWindowModality(Qt::ApplicationModal);
    }
    if (parameters.place) {
        window->move(*parameters.place);
    }
    window->show();
    widget->setFocus(Qt::OtherFocusReason);
    return window;
}

// Where the focus stands in the active sub-window, in coordinates of the area.
std::optional<QPoint> placeOfFocus(const QMdiArea& area) {
    const QMdiSubWindow* const active = area.activeSubWindow();
    const QWidget* const focus = active == nullptr ? nullptr : active->focusWidget();
    if (focus == nullptr) {
        return std::nullopt;
    }
    return area.viewport()->mapFromGlobal(focus->mapToGlobal(QPoint(0, 0)));
}

QWidget* showInMdiArea(QMdiArea& area, QWidget* widget, QToolBar* bar,
                       const localVclWindowParameters& parameters) {
    const std::optional<QPoint> place = placeOfFocus(area);
    // An empty tool bar takes no room, and one with actions none from the widget.
    bar->setVisible(!bar->actions().isEmpty());
    const int barHeight = bar->actions().isEmpty() ? 0 : toolBarHeight;
    const QSize size = widget->size() + QSize(subWindowMargin, subWindowMargin + barHeight);
    auto* const inner = new SubWindowContent(widget);
    auto* const layout = new QVBoxLayout(inner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* const scroll = new QScrollArea;
    scroll->setWidget(widget);
    layout->addWidget(bar);
    layout->addWidget(scroll);
    QMdiSubWindow* const window = area.addSubWindow(inner);
    for (QWidget* const part : {static_cast<QWidget*>(window), static_cast<QWidget*>(inner),
                                static_cast<QWidget*>(scroll)}) {
        part->setAttribute(Qt::WA_DeleteOnClose);
    }
    window->resize(size);
    if (place) {
        window->move(*place);
    }
    window->setWindowIcon(iconOf(parameters));
    window->setWindowTitle(parameters.title);
    if (parameters.modal) {
        window->setWindowModality(Qt::ApplicationModal);
    }
    window->setFocusPolicy(Qt::StrongFocus);
    window->setFocus(Qt::OtherFocusReason);
    window->show();
    // The frame, whose size is known by now, stands around what has that size.
    window->resize(window->size() + size - inner->size());
    return window;
}

}  // namespace

localVclWindowParameters localVclWindowParametersOf(const localValueList& list) {
    localVclWindowParameters parameters;
    const auto textOf = [&](std::u16string_view key) {
        const localValueDescription* const value = list.valueByPresentation(key);
        const bool isText = value != nullptr && value->type == localValueTypeSTRING;
        return isText ? localVclQString(value->wStr) : QString();
    };
    parameters.title = textOf(u"title");
    parameters.iconAsBase64 = textOf(u"iconAsBase64");
    const localValueDescription* const modal = list.valueByPresentation(u"modal");
    parameters.modal = modal != nullptr && modal->type == localValueTypeNUMBER && modal->num > 0;
    return parameters;
}

QWidget* localVclWindowShow(QWidget* widget, const localVclWindowParameters& parameters) {
    widget->setAttribute(Qt::WA_DeleteOnClose);
    QToolBar* const bar = toolBarFor(widget);
    QMdiArea* const area = localMdiAreaFind();
    return area == nullptr ? showInMainWindow(widget, bar, parameters)
                           : showInMdiArea(*area, widget, bar, parameters);
}

QWidget* localVclWindowShow(QWidget* widget, const localValueList& parameters) {
    return localVclWindowShow(widget, localVclWindowParametersOf(parameters));
}

QMdiArea* localMdiAreaFind() {
    return findByName<QMdiArea>(QStringLiteral("localMdiArea"));
}

QWidget* localMessagePanelFind() {
    return findByName<QWidget>(QStringLiteral("localMessagePanel"));
}
