#include "localVCL/library/localVclLibrary.h"

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QShortcut>

#include "dialog/localVclArrowCursor.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localPicture/picture/localPictureInstall.h"
#include "localPictureConverter/localPictureConverterOnQt.h"
#include "localVCL/dialog/localCalendar.h"
#include "localVCL/dialog/localVclMessage.h"
#include "localVCL/font/localVclFont.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclWindow.h"

namespace {

// In pixels. A window of a small picture still has a title to take it by.
constexpr QSize textWindowSize{640, 400};
constexpr QSize smallestPictureWindow{240, 160};

// Shows a widget that nothing is typed into; Esc closes it.
void showToLookAt(QWidget* widget, const QString& title) {
    localVclWindowParameters parameters;
    parameters.title = title;
    QWidget* const window = localVclWindowShow(widget, parameters);
    auto* const escape = new QShortcut(Qt::Key_Escape, widget);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, window, &QWidget::close);
}

bool stringShow(localCall& call) {
    const QString text = localVclQString(call.args[0]->toString());
    localVclOnWindowThread([&] {
        auto* const shown = new QPlainTextEdit(text);
        shown->setReadOnly(true);
        shown->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        shown->setFont(localVclFont(3));
        shown->resize(textWindowSize);
        showToLookAt(shown, QStringLiteral("TE"));
    });
    return call.done();
}

QMessageBox::Icon iconOfKind(double kind) {
    if (kind == 1) {
        return QMessageBox::Warning;
    }
    if (kind == 2) {
        return QMessageBox::Critical;
    }
    return kind == 3 ? QMessageBox::Question : QMessageBox::Information;
}

// The kind is 0 information, 1 warning, 2 critical, 3 question; any other number means 0.
bool messageBox(localCall& call) {
    const QString text = localVclQString(call.text(0));
    const double kind = call.args.size() > 1 ? call.number(1) : 0;
    localVclOnWindowThread(
        [&] { localVclMessageShow(text, QStringLiteral("Сообщение"), 0, iconOfKind(kind)); });
    return call.done();
}

// A dialog that was rejected gives an empty text.
bool dateChooseAsString(localCall& call) {
    const QString start = call.args.empty() ? QString() : localVclQString(call.text(0));
    QString chosen;
    localVclOnWindowThread([&] {
        const localVclArrowCursor arrow;
        localCalendar calendar(localCalendar::dateOf(start), QApplication::activeWindow());
        if (calendar.exec() == QDialog::Accepted) {
            chosen = calendar.selectedDate();
        }
    });
    return call.give(localText(localVclText(chosen)));
}

// A text that is no picture shows an empty window.
bool pixmapAsBase64Show(localCall& call) {
    const QString picture = localVclQString(call.text(0));
    localVclOnWindowThread([&] {
        const QPixmap pixmap = localVclPixmapFromBase64(picture);
        auto* const label = new QLabel;
        label->setAlignment(Qt::AlignCenter);
        label->setPixmap(pixmap);
        auto* const shown = new QScrollArea;
        shown->setFrameShape(QFrame::NoFrame);
        shown->setWidgetResizable(true);
        shown->setWidget(label);
        shown->resize(pixmap.size().expandedTo(smallestPictureWindow));
        showToLookAt(shown, {});
    });
    return call.done();
}

}  // namespace

void localVclLibraryInstall() {
    localPictureInstall(localPictureConverterOnQt());
    localLibrary::install(u"STRINGSHOW", stringShow);
    localLibrary::install(u"MESSAGEBOX", messageBox);
    localLibrary::install(u"DATECHOOSEASSTRING", dateChooseAsString);
    localLibrary::install(u"PIXMAPASBASE64SHOW", pixmapAsBase64Show);
}
