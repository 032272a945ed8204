#include "window/localVclLookAt.h"

#include <QShortcut>
#include <QWidget>

#include "localVCL/window/localVclWindow.h"

void localVclLookAt(QWidget* widget, const QString& title) {
    localVclWindowParameters parameters;
    parameters.title = title;
    QWidget* const window = localVclWindowShow(widget, parameters);
    auto* const escape = new QShortcut(Qt::Key_Escape, widget);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, window, &QWidget::close);
}
