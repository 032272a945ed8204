#include "localVCL/window/localMainWindow.h"

#include <QCloseEvent>

#include "localVCL/picture/localVclPicture.h"
#include "localVCL/window/localVclWindow.h"

localMainWindow::localMainWindow(QWidget* parent) : QMainWindow(parent) {
    setObjectName(QStringLiteral("localMainWindow"));
    setWindowIcon(localVclProgramIcon());
}

void localMainWindow::closeEvent(QCloseEvent* event) {
    auto* const content = dynamic_cast<localVclWindowContent*>(centralWidget());
    if (content != nullptr && !content->windowMayClose()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
}
