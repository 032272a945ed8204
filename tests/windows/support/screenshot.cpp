#include "screenshot.h"

#include <QDir>
#include <QPixmap>
#include <QWidget>

bool saveScreenshot(QWidget& widget, const QString& name) {
    const QDir folder(qEnvironmentVariable("KORVO_SCREENSHOTS", "."));
    return widget.grab().save(folder.filePath(name + ".png"));
}
