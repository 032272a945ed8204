// Loading and saving.

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

#include <algorithm>

#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/editor/localVclTextSaveDialog.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/text/localVclText.h"

namespace {

// Where the dialog for a missing file starts: the samples of the working directory, or those beside
// the program.
QString samplesFolder() {
    const QString beside = localVclQString(localStd::pathJoin(localStd::binaryPath(), u"prgTest"));
    for (const QString& folder : {QStringLiteral("prgTest"), beside}) {
        if (QDir(folder).exists()) {
            return folder;
        }
    }
    return {};
}

// What the system says about a file that cannot be read.
QString readingErrorText(const std::u16string& fileName) {
    QFile file(localVclQString(localPlatform::normalizedPath(fileName)));
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

// What the reader of files puts in the place of a byte that it does not know: as it stands here, it
// is not what stood in the file.
constexpr char16_t unreadable = 255;

bool comesBack(std::u16string_view text) {
    return text.find(unreadable) == std::u16string_view::npos &&
           localString::fromUtf8(localString::toUtf8(text)) == text;
}

}  // namespace

bool localVclWidgetEditor::load(const std::u16string& fileName,
                                localString::possibleCodePage codePage) {
    std::u16string name = fileName;
    if (!localPlatform::pathExists(name)) {
        name = QFileDialog::getOpenFileName(isVisible() ? this : nullptr,
                                            QStringLiteral("Open formFile "), samplesFolder(),
                                            QStringLiteral("*.prg *.prg"))
                   .toStdU16String();
        if (name.empty()) {
            return false;
        }
    }
    name = trimBoth(name);
    std::u16string text;
    if (!fileRead(name, text, codePage)) {
        writeLine(u"Error reading file  [" + name + u"] " +
                  readingErrorText(name).toStdU16String());
        return false;
    }
    textSet(text);
    fileNameSet(std::move(name));
    return true;
}

void localVclWidgetEditor::fileNameSet(std::u16string fileName) {
    fileName_ = std::move(fileName);
    folder_ = localPlatform::workingDirectory();
    titleSet(localVclQString(fileName_));
}

std::u16string localVclWidgetEditor::fileWritten() const {
    const QString path = localVclQString(localPlatform::normalizedPath(fileName_));
    const bool stands = path.isEmpty() || QDir::isAbsolutePath(path) ||
                        folder_ == localPlatform::workingDirectory();
    return stands ? fileName_ : localStd::pathJoin(folder_, fileName_);
}

bool localVclWidgetEditor::saveSlot() {
    const std::u16string written = text();
    if (!lossAgreed(written) ||
        !fileWrite(FileWriteMode::truncate, localString::codePageUtf8, written, fileWritten())) {
        writeLine(u"Файл не сохранён!");
        return false;
    }
    document()->setModified(false);
    return true;
}

bool localVclWidgetEditor::saveAsSlot() {
    const std::u16string written = text();
    std::u16string chosen;
    if (lossAgreed(written)) {
        chosen =
            localVclTextSaveDialog(localString::codePageUtf8, written, QStringLiteral("SaveAs"),
                                   QStringLiteral("*.*"), localVclQString(fileWritten()), this);
    }
    if (chosen.empty()) {
        writeLine(u"Файл не сохранён!");
        return false;
    }
    fileNameSet(std::move(chosen));
    document()->setModified(false);
    return true;
}

// What a file cannot hold -------------------------------------------------------------------------

bool localVclWidgetEditor::lossAgreed(std::u16string_view written) {
    if (comesBack(written)) {
        return true;
    }
    std::size_t count = 0;
    std::size_t first = written.size();
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] >= 128 && !comesBack(written.substr(i, 1))) {
            first = std::min(first, i);
            ++count;
        }
    }
    // A person who has agreed once is asked again only when there is more to lose.
    if (count > lossAgreed_) {
        const auto line = std::count(written.begin(), written.begin() + first, u'\n') + 1;
        const std::size_t units = QChar::isHighSurrogate(written[first]) ? 2 : 1;
        if (!lossAsk(QStringLiteral("Знаков, которых файл не может сохранить: %1. Первый из них, "
                                    "\"%2\", стоит в строке %3. В файле они будут потеряны. "
                                    "Сохранить его?")
                         .arg(QString::number(count), localVclQString(written.substr(first, units)),
                              QString::number(line)))) {
            return false;
        }
        lossAgreed_ = count;
    }
    return true;
}

bool localVclWidgetEditor::lossAsk(const QString& question) {
    QMessageBox box(QMessageBox::Warning, localVclQString(fileName_), question,
                    QMessageBox::Save | QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}
