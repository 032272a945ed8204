// The functions of the language on pictures.
#include <gmock/gmock.h>

#include <QBuffer>
#include <QImage>

#include <cmath>
#include <fstream>
#include <string>

#include "library/libraryCall.h"
#include "localPictureConverter/localPictureConverterExtension.h"

namespace {

class localPictureFunctionsTest : public libraryTest {
protected:
    localPictureFunctionsTest() { localExtensionAdd(localPictureConverterExtension); }

    // 4 by 3 pixels, each telling its own place.
    static QByteArray png() {
        QImage image(4, 3, QImage::Format_RGB32);
        for (int y = 0; y < 3; ++y) {
            for (int x = 0; x < 4; ++x) {
                image.setPixel(x, y, qRgb(x, y, 100));
            }
        }
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, "PNG"));
        return bytes;
    }
    static std::u16string text() { return QString::fromLatin1(png().toBase64()).toStdU16String(); }
    static QImage imageOf(const libraryOutcome& out) {
        EXPECT_EQ(out.status, localErrorTypeOK);
        const std::u16string_view view = out.result->wStr;
        return QImage::fromData(
            QByteArray::fromBase64(QStringView(view.data(), qsizetype(view.size())).toLatin1()));
    }
};

using functions = localPictureFunctionsTest;

TEST_F(functions, aFileBecomesAPng) {
    const QByteArray bytes = png();
    std::ofstream("picture.png", std::ios::binary).write(bytes.data(), bytes.size());
    EXPECT_EQ(imageOf(call(u"PIXMAPASBASE64FROMFILEGET", u"picture.png")).size(), QSize(4, 3));
    std::ofstream("text.png", std::ios::binary) << "no picture";
    output.clear();
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"text.png").result->wStr.view(), u"");
    EXPECT_THAT(output.lines(), testing::ElementsAre("Это не картинка!"));
    std::ofstream("empty.png", std::ios::binary);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"empty.png").result->wStr.view(), u"");
}

// A page of 600 dots an inch takes more than the 128 megabytes that the toolkit grants by itself.
TEST_F(functions, theBoundOfAPictureIsTheMemory) {
    QImage page(4961, 7016, QImage::Format_RGB32);
    page.fill(Qt::white);
    ASSERT_TRUE(page.save("page.png"));
    const QSize size = page.size();
    page = {};
    const auto text = call(u"PIXMAPASBASE64FROMFILEGET", u"page.png");
    EXPECT_EQ(imageOf(text).size(), size);
    EXPECT_EQ(imageOf(call(u"PIXMAPASBASE64PARTGET", std::u16string(text.result->wStr.view()),
                           4000.0, 7000.0))
                  .size(),
              QSize(961, 16));
}

TEST_F(functions, aFileThatIsNotThereIsStatus23) {
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"missing.png").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u"").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", u".").status, 23);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET").status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64FROMFILEGET", 1.0).status, 33);
}

TEST_F(functions, anAreaIsCutInWholePixels) {
    const QImage toTheEdge = imageOf(call(u"PIXMAPASBASE64PARTGET", text(), 1.9, 2.0));
    EXPECT_EQ(toTheEdge.size(), QSize(3, 1));
    EXPECT_EQ(toTheEdge.pixel(0, 0), qRgb(1, 2, 100));
    const auto sizeOf = [](const libraryOutcome& out) { return imageOf(out).size(); };
    EXPECT_EQ(sizeOf(call(u"PIXMAPASBASE64PARTGET", text(), 1.0, 0.0, 2.9)), QSize(2, 3));
    EXPECT_EQ(sizeOf(call(u"PIXMAPASBASE64PARTGET", text(), 1.0, 0.0, 2.0, 1e300)), QSize(2, 3));
    EXPECT_EQ(sizeOf(call(u"PIXMAPASBASE64PARTGET", text(), 1.0, 0.0, 9.0, 1.0)), QSize(3, 1));
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", text(), 0.0, 0.0, 0.0).result->wStr.view(), u"");
}

TEST_F(functions, numbersBelow0AreStatus32) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", -1.0, 0.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, -1.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, -1.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, 1.0, -1e300).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", std::nan(""), 0.0).status, 32);
}

TEST_F(functions, argumentsAreChecked) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0).status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, 0.0, 0.0, 0.0).status, 31);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", 1.0, 0.0, 0.0).status, 33);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", u"0", 0.0).status, 33);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", u"", 0.0, 0.0, u"1").status, 33);
}

TEST_F(functions, anAreaOutsideIsStatus32) {
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", text(), 5.0, 0.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", text(), 0.0, 4.0).status, 32);
    EXPECT_EQ(call(u"PIXMAPASBASE64PARTGET", text(), 4.0, 3.0).result->wStr.view(), u"");
}

}  // namespace
