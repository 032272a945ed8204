#include "localVCL/editor/localVclTextSaveDialog.h"

#include <QFileDialog>

#include "localInterpretatorUTF8/file/localFile.h"

std::u16string localVclTextSaveDialog(localString::possibleCodePage codePage,
                                      std::u16string_view text, const QString& title,
                                      const QString& filter, const QString& directory,
                                      QWidget* parent) {
    const std::u16string fileName =
        QFileDialog::getSaveFileName(parent, title, directory, filter).toStdU16String();
    if (fileName.empty() || !fileWrite(FileWriteMode::truncate, codePage, text, fileName)) {
        return {};
    }
    return fileName;
}
