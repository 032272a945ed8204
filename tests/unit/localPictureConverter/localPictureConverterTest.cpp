// Pictures from one form into another.
#include "localPictureConverter/localPictureConverter.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QImage>
#include <QString>

namespace {

QByteArray fileOf(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

std::u16string textOf(const QByteArray& file) {
    return QString::fromLatin1(file.toBase64()).toStdU16String();
}

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

QImage imageOf(const std::u16string& text) {
    const QByteArray file = QByteArray::fromBase64(QString::fromStdU16String(text).toLatin1());
    EXPECT_TRUE(file.isEmpty() || file.startsWith("\x89PNG"));
    return QImage::fromData(file);
}

// Each pixel tells its own place.
QImage places(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb(x, y, 100));
        }
    }
    return image;
}

TEST(localPictureConverterTest, filesOfSeveralFormatsBecomePng) {
    const QImage image = places(12, 7);
    for (const char* const format : {"PNG", "BMP", "PPM"}) {
        const QImage read =
            imageOf(localPictureConverter::pngAsBase64(viewOf(fileOf(image, format))));
        EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32), image) << format;
    }
    EXPECT_EQ(imageOf(localPictureConverter::pngAsBase64(viewOf(fileOf(image, "JPEG")))).size(),
              image.size());
}

TEST(localPictureConverterTest, transparencySurvives) {
    QImage image(3, 3, QImage::Format_ARGB32);
    image.fill(qRgba(255, 0, 0, 128));
    const QImage read = imageOf(localPictureConverter::pngAsBase64(viewOf(fileOf(image, "PNG"))));
    EXPECT_EQ(qAlpha(read.pixel(1, 1)), 128);
}

TEST(localPictureConverterTest, whatIsNoPictureIsAnEmptyText) {
    const QByteArray png = fileOf(places(40, 40), "PNG");
    EXPECT_EQ(localPictureConverter::pngAsBase64({}), u"");
    EXPECT_EQ(localPictureConverter::pngAsBase64("text"), u"");
    EXPECT_EQ(localPictureConverter::pngAsBase64(viewOf(png).substr(0, 20)), u"");
    EXPECT_EQ(localPictureConverter::pngAsBase64(viewOf(png).substr(8)), u"");
}

// A header that promises more pixels than memory holds must not take the process down.
TEST(localPictureConverterTest, aHugePromiseIsNoPicture) {
    QByteArray bmp = fileOf(places(4, 4), "BMP");
    for (const int place : {18, 22}) {
        bmp[place] = bmp[place + 1] = char(0xFF);
        bmp[place + 2] = bmp[place + 3] = 0x7F;
    }
    EXPECT_EQ(localPictureConverter::pngAsBase64(viewOf(bmp)), u"");
}

TEST(localPictureConverterTest, areasAreCut) {
    const QImage image = places(10, 6);
    const std::u16string text = textOf(fileOf(image, "BMP"));
    const auto part = [&](const localPictureArea& area) {
        const auto cut = localPictureConverter::partAsBase64(text, area);
        EXPECT_TRUE(cut);
        return imageOf(cut.value_or(u"")).convertToFormat(QImage::Format_RGB32);
    };
    EXPECT_EQ(part({0, 0, {}, {}}), image);
    EXPECT_EQ(part({3, 2, {}, {}}), image.copy(3, 2, 7, 4));
    EXPECT_EQ(part({3, 2, 2, {}}), image.copy(3, 2, 2, 4));
    EXPECT_EQ(part({3, 2, 2, 1}), image.copy(3, 2, 2, 1));
    EXPECT_EQ(part({3, 2, 7, 4}), image.copy(3, 2, 7, 4));
    EXPECT_EQ(part({3, 2, 8, 5}), image.copy(3, 2, 7, 4));
    EXPECT_EQ(part({9, 5, 2147483647, 2147483647}), image.copy(9, 5, 1, 1));
}

TEST(localPictureConverterTest, anAreaWithoutPixelsIsAnEmptyText) {
    const std::u16string text = textOf(fileOf(places(10, 6), "PNG"));
    for (const localPictureArea& area : {localPictureArea{10, 0, {}, {}},
                                         {0, 6, {}, {}},
                                         {10, 6, {}, {}},
                                         {1, 1, 0, {}},
                                         {1, 1, {}, 0}}) {
        EXPECT_EQ(localPictureConverter::partAsBase64(text, area), u"");
    }
}

TEST(localPictureConverterTest, anAreaOutsideIsNothing) {
    const std::u16string text = textOf(fileOf(places(10, 6), "PNG"));
    EXPECT_EQ(localPictureConverter::partAsBase64(text, {11, 0, {}, {}}), std::nullopt);
    EXPECT_EQ(localPictureConverter::partAsBase64(text, {0, 7, {}, {}}), std::nullopt);
}

TEST(localPictureConverterTest, whatIsNoPictureHasNoPixels) {
    for (const std::u16string_view text : {u"", u"AAAA", u"ёж", u"%%%"}) {
        EXPECT_EQ(localPictureConverter::partAsBase64(text, {0, 0, {}, {}}), u"");
        EXPECT_EQ(localPictureConverter::partAsBase64(text, {1, 0, {}, {}}), std::nullopt);
    }
}

}  // namespace
