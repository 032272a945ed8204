#include "localVCL/picture/localVclImage.h"

#include <QPainter>

#include "localVCL/picture/localVclPicture.h"

localVclImage::localVclImage(QWidget* parent) : QWidget(parent) {}

void localVclImage::pictureAsBase64Set(const QString& picture) {
    pictureAsBase64_ = picture;
    pixmap_ = localVclPixmapFromBase64(picture);
    updateGeometry();
    update();
}

QSize localVclImage::sizeHint() const {
    return pixmap_.isNull() ? QSize(64, 64) : pixmap_.size();
}

void localVclImage::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.setBrush(palette().brush(QPalette::Window));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!pixmap_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), pixmap_);
    }
}
