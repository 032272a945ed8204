#include "localVCL/host/localVclHost.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"

namespace {

void showBox(QMessageBox::Icon icon, std::u16string_view title, std::u16string_view text) {
    if (qApp == nullptr) {
        return;
    }
    localVclOnWindowThread([=] {
        QMessageBox box(icon, localVclQString(title), localVclQString(text), QMessageBox::Ok,
                        QApplication::activeWindow());
        box.setTextFormat(Qt::PlainText);
        box.exec();
    });
}

}  // namespace

void localVclHost::setCursor(Cursor cursor) {
    if (qApp == nullptr) {
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

void localVclHost::messageBox(MessageKind kind, std::u16string_view title,
                              std::u16string_view text) {
    const QMessageBox::Icon icons[] = {QMessageBox::Information, QMessageBox::Warning,
                                       QMessageBox::Critical};
    showBox(icons[static_cast<std::size_t>(kind)], title, text);
}

void localVclHost::haltBox(std::u16string_view title, std::u16string_view text) {
    showBox(QMessageBox::Critical, title, text);
}

bool localVclHost::showList(std::u16string_view title, const std::vector<std::u16string>& lines) {
    return chooseRow(title, lines, 0).has_value();
}

std::optional<std::size_t> localVclHost::chooseRow(std::u16string_view title,
                                                   const std::vector<std::u16string>& lines,
                                                   std::size_t startRow) {
    if (qApp == nullptr) {
        return std::nullopt;
    }
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(lines.size()));
    for (const std::u16string& line : lines) {
        texts.append(localVclQString(line));
    }
    std::size_t chosen = 0;
    localVclOnWindowThread([&] {
        int row = static_cast<int>(startRow) - 1;
        if (localVclQStringListGetItem(localVclQString(title), texts, row)) {
            chosen = static_cast<std::size_t>(row + 1);
        }
    });
    return chosen;
}

bool localVclHost::openOutsideEditor(std::u16string_view fileName) {
    const QString opener = QStandardPaths::findExecutable("xdg-open");
    if (opener.isEmpty() || !qEnvironmentVariableIsEmpty("VISUAL")) {
        return localHost::openOutsideEditor(fileName);
    }
    return QProcess::startDetached(opener,
                                   {localVclQString(localPlatform::normalizedPath(fileName))});
}

bool localVclHost::openEditor(std::u16string_view fileName,
                              localString::possibleCodePage codePage) {
    if (qApp == nullptr) {
        return false;
    }
    localVclOnWindowThread([&] { localVclWidgetEditor::open(std::u16string(fileName), codePage); });
    return true;
}
