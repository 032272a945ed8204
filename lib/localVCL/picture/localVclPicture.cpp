#include "localVCL/picture/localVclPicture.h"

#include <QBuffer>
#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QImageReader>

#include "icons/localIcons.h"

QPixmap localVclPixmapFromBase64(QStringView text) {
    // The toolkit's own bound is 128 megabytes, less than a page from a scanner.
    QImageReader::setAllocationLimit(0);
    QPixmap pixmap;
    pixmap.loadFromData(QByteArray::fromBase64(text.toLatin1()));
    return pixmap;
}

QString localVclPixmapToBase64(const QPixmap& pixmap) {
    QByteArray png;
    QBuffer buffer(&png);
    if (pixmap.isNull() || !buffer.open(QIODevice::WriteOnly) || !pixmap.save(&buffer, "PNG")) {
        return {};
    }
    return QString::fromLatin1(png.toBase64());
}

QPixmap localVclPixmap(const QString& fileName) {
    const QPixmap pixmap(QDir(QCoreApplication::applicationDirPath()).filePath(fileName));
    return pixmap.isNull() ? QPixmap(localIconPath(fileName)) : pixmap;
}

QIcon localVclProgramIcon() {
    return localVclPixmap(QStringLiteral("logoKV_3232.png"));
}
