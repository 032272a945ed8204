#include "localVCL/library/localVclExtension.h"

#include <QLabel>
#include <QScrollArea>

#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "window/localVclLookAt.h"

namespace {

// In pixels. A window of a small picture still has a title to take it by.
constexpr QSize smallestPictureWindow{240, 160};

// A text that is no picture shows a window that says so.
bool pixmapAsBase64Show(localCall& call) {
    const QString picture = localVclQString(call.text(0));
    localVclOnWindowThread([&] {
        const QPixmap pixmap = localVclPixmapFromBase64(picture);
        auto* const label = new QLabel;
        label->setAlignment(Qt::AlignCenter);
        if (pixmap.isNull()) {
            label->setText(QStringLiteral("Это не картинка!"));
        } else {
            label->setPixmap(pixmap);
        }
        auto* const shown = new QScrollArea;
        shown->setFrameShape(QFrame::NoFrame);
        shown->setWidgetResizable(true);
        shown->setWidget(label);
        shown->resize(pixmap.size().expandedTo(smallestPictureWindow));
        localVclLookAt(shown, {});
    });
    return call.done();
}

constexpr localExtensionFunction functions[] = {
    {u"PIXMAPASBASE64SHOW", pixmapAsBase64Show},
};

}  // namespace

constexpr localExtension localVclExtension = {.name = u"localVCL", .functions = functions};
