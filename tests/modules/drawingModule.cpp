// A module that draws with the toolkit. Built under two names, with a function each.
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <clocale>

#include "localInterpretatorUTF8/library/localModule.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localToolkit/localToolkitApplication.h"

namespace {

int darkPixels(const QString& text) {
    QImage image(200, 60, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont("Sans", 20));
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    painter.end();
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            dark += qGray(image.pixel(x, y)) < 128;
        }
    }
    return dark;
}

// "text drawn|platform|how the locale writes numbers|address of the application".
bool draw(localCall& call) {
    const QGuiApplication& application = localToolkitApplication();
    const std::u16string_view text = call.text(0);
    const bool drawn = darkPixels(QString::fromUtf16(text.data(), qsizetype(text.size()))) > 20;
    const QString facts = QStringLiteral("%1|%2|%3|")
                              .arg(drawn ? "drawn" : "blank", QGuiApplication::platformName(),
                                   std::setlocale(LC_NUMERIC, nullptr));
    return call.give(localText(facts.toStdU16String() + addressText(&application)));
}

constexpr localExtensionFunction functions[] = {{KORVO_DRAWING_FUNCTION, draw}};
constexpr localExtension extension = {.name = u"drawingModule", .functions = functions};

}  // namespace

const localExtension* localModule() {
    return &extension;
}
