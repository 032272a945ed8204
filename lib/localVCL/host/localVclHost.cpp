#include "localVCL/host/localVclHost.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include "dialog/localVclArrowCursor.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/dialog/localCalendar.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/dialog/localVclMessage.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/font/localVclFont.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "window/localVclLookAt.h"

namespace {

// In pixels.
constexpr QSize textWindowSize{640, 400};
constexpr int aboutPictureSize = 64;

// A box of the kind "about" has a picture and no icon.
QMessageBox::Icon iconOf(localReport::Kind kind) {
    switch (kind) {
        case localReport::Kind::about:
            return QMessageBox::NoIcon;
        case localReport::Kind::information:
            return QMessageBox::Information;
        case localReport::Kind::warning:
            return QMessageBox::Warning;
        case localReport::Kind::critical:
            return QMessageBox::Critical;
        case localReport::Kind::question:
            return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

struct ButtonPair {
    localReport::Button ours;
    QMessageBox::StandardButton shown;
};
constexpr ButtonPair buttonPairs[] = {
    {localReport::Button::ok, QMessageBox::Ok},
    {localReport::Button::cancel, QMessageBox::Cancel},
    {localReport::Button::yes, QMessageBox::Yes},
    {localReport::Button::no, QMessageBox::No},
};

QMessageBox::StandardButton shownButton(localReport::Button button) {
    for (const ButtonPair& pair : buttonPairs) {
        if (pair.ours == button) {
            return pair.shown;
        }
    }
    return QMessageBox::NoButton;
}

localReport::Button pressedButton(int shown, localReport::Button otherwise) {
    for (const ButtonPair& pair : buttonPairs) {
        if (pair.shown == shown) {
            return pair.ours;
        }
    }
    return otherwise;
}

// On the windows' thread only.
localReport::Button runBox(const localReport& report) {
    const localVclArrowCursor arrow;
    QMessageBox box(iconOf(report.kind), localVclQString(report.title),
                    localVclQString(report.text), QMessageBox::NoButton,
                    QApplication::activeWindow());
    box.setTextFormat(report.form == localReport::Form::html ? Qt::RichText : Qt::PlainText);
    if (report.kind == localReport::Kind::about) {
        box.setIconPixmap(localVclProgramIcon().pixmap(aboutPictureSize));
    }
    for (const localReport::Button button : report.buttons) {
        box.addButton(shownButton(button));
    }
    box.setDefaultButton(shownButton(report.defaultButton));
    return pressedButton(box.exec(), report.defaultButton);
}

}  // namespace

bool localVclHost::hasScreen() const {
    return qApp != nullptr;
}

void localVclHost::setCursor(Cursor cursor) {
    if (!hasScreen()) {
        return;
    }
    localVclOnWindowThread([=] {
        switch (cursor) {
            case Cursor::wait:
                QApplication::setOverrideCursor(Qt::WaitCursor);
                break;
            case Cursor::arrow:
                QApplication::setOverrideCursor(Qt::ArrowCursor);
                break;
            case Cursor::restored:
                QApplication::restoreOverrideCursor();
                break;
        }
    });
}

void localVclHost::beep() {
    if (hasScreen()) {
        localVclOnWindowThread([] { QApplication::beep(); });
    }
}

localReport::Button localVclHost::report(const localReport& report) {
    if (!hasScreen()) {
        return localHost::report(report);
    }
    localReport::Button pressed = report.defaultButton;
    localVclAskOnWindowThread([&] { pressed = runBox(report); });
    return pressed;
}

bool localVclHost::showMessage(const localReport& message) {
    if (!hasScreen()) {
        return false;
    }
    localVclAskOnWindowThread([&] {
        localVclMessageShow(localVclQString(message.text), localVclQString(message.title), 0,
                            iconOf(message.kind));
    });
    return true;
}

void localVclHost::haltBox(std::u16string_view title, std::u16string_view text) {
    if (!hasScreen()) {
        return;
    }
    // The turn is with nobody: no window shall come into a language that has a defect, as the one
    // would that the box takes the keyboard from.
    const localTurn::Loan lentToNobody;
    const auto show = [&] {
        runBox({.kind = localReport::Kind::critical,
                .title = std::u16string(title),
                .text = std::u16string(text)});
    };
    if (localVclIsWindowThread()) {
        show();
    } else {
        localVclSendToWindowThread(show);
    }
}

std::optional<std::size_t> localVclHost::chooseRow(std::u16string_view title,
                                                   const std::vector<std::u16string>& lines,
                                                   std::size_t startRow) {
    if (!hasScreen()) {
        return std::nullopt;
    }
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(lines.size()));
    for (const std::u16string& line : lines) {
        texts.append(localVclQString(line));
    }
    std::size_t chosen = 0;
    localVclAskOnWindowThread([&] {
        int row = static_cast<int>(startRow) - 1;
        if (localVclQStringListGetItem(localVclQString(title), texts, row)) {
            chosen = static_cast<std::size_t>(row) + 1;
        }
    });
    return chosen;
}

std::optional<std::u16string> localVclHost::chooseDate(std::u16string_view start) {
    if (!hasScreen()) {
        return std::nullopt;
    }
    std::u16string chosen;
    localVclAskOnWindowThread([&] {
        const localVclArrowCursor arrow;
        localCalendar calendar(localCalendar::dateOf(localVclQString(start)),
                               QApplication::activeWindow());
        if (calendar.exec() == QDialog::Accepted) {
            chosen = localVclText(calendar.selectedDate());
        }
    });
    return chosen;
}

std::u16string localVclHost::chooseFile(std::u16string_view title, std::u16string_view folder,
                                        const std::vector<std::u16string>& filters) {
    if (!hasScreen()) {
        return {};
    }
    QStringList shown;
    for (const std::u16string& filter : filters) {
        shown.append(localVclQString(filter));
    }
    std::u16string chosen;
    localVclAskOnWindowThread([&] {
        const localVclArrowCursor arrow;
        chosen =
            QFileDialog::getOpenFileName(QApplication::activeWindow(), localVclQString(title),
                                         localVclQString(folder), shown.join(QStringLiteral(";;")))
                .toStdU16String();
    });
    return chosen;
}

bool localVclHost::showText(std::u16string_view title, std::u16string_view text) {
    if (!hasScreen()) {
        return false;
    }
    localVclOnWindowThread([&] {
        auto* const shown = new QPlainTextEdit(localVclQString(text));
        shown->setReadOnly(true);
        shown->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        shown->setFont(localVclFont(3));
        shown->resize(textWindowSize);
        localVclLookAt(shown, localVclQString(title));
    });
    return true;
}

bool localVclHost::showList(std::u16string_view title, const std::vector<std::u16string>& lines) {
    return chooseRow(title, lines, 0).has_value();
}

bool localVclHost::openEditor(std::u16string_view fileName,
                              localString::possibleCodePage codePage) {
    if (!hasScreen()) {
        return false;
    }
    // It may ask for a file.
    localVclAskOnWindowThread(
        [&] { localVclWidgetEditor::open(std::u16string(fileName), codePage); });
    return true;
}

bool localVclHost::openOutsideEditor(std::u16string_view fileName) {
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    if (opener.isEmpty() || !qEnvironmentVariableIsEmpty("VISUAL")) {
        return localHost::openOutsideEditor(fileName);
    }
    return QProcess::startDetached(opener,
                                   {localVclQString(localPlatform::normalizedPath(fileName))});
}
