#include "localPictureConverter/localPictureConverter.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <algorithm>

#include "localInterpretatorUTF8/text/localTrace.h"

namespace localPictureConverter {
namespace {

// Null, with a line that says so, where the bytes are no picture.
QImage imageOf(QByteArrayView bytes) {
    // The toolkit's own bound is 128 megabytes, less than a page from a scanner.
    QImageReader::setAllocationLimit(0);
    const QImage image = QImage::fromData(bytes);
    if (image.isNull()) {
        traceLine(u"Это не картинка!", "imageOf");
    }
    return image;
}

std::u16string base64OfPng(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG")) {
        return {};
    }
    return QString::fromLatin1(png.toBase64()).toStdU16String();
}

// What of the available pixels is taken: those asked for, if there are so many.
int taken(int available, std::optional<int> wanted) {
    return std::min(available, wanted.value_or(available));
}

}  // namespace

std::u16string pngAsBase64(std::string_view file) {
    return base64OfPng(imageOf(QByteArrayView(file.data(), qsizetype(file.size()))));
}

std::optional<std::u16string> partAsBase64(std::u16string_view picture,
                                           const localPictureArea& area) {
    const QByteArray text = QStringView(picture.data(), qsizetype(picture.size())).toLatin1();
    const QImage image = imageOf(QByteArray::fromBase64(text));
    if (area.x > image.width() || area.y > image.height()) {
        return std::nullopt;
    }
    const QRect part(area.x, area.y, taken(image.width() - area.x, area.width),
                     taken(image.height() - area.y, area.height));
    // The toolkit would take an empty rectangle for the whole picture.
    return part.isEmpty() ? std::u16string() : base64OfPng(image.copy(part));
}

}  // namespace localPictureConverter
