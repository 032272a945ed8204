#include "localSxl/export/localSxlExport.h"

#include <QFile>
#include <QPageSize>
#include <QPdfWriter>

#include "export/localSxlFormats.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localSxl/paint/localSxlPages.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

struct Format {
    std::u16string_view ending;  // in capitals
    bool (*write)(const localSxlSheet& sheet, const std::string& file, std::u16string& fault);
};

constexpr Format formats[] = {
    {u".PDF", localSxlWritePdf},
    {u".HTML", localSxlWriteHtml},
    {u".CSV", localSxlWriteCsv},
    {u".XLSX", localSxlWriteXlsx},
};

const Format* formatOf(std::u16string_view fileName) {
    const std::u16string name = toUpper(fileName);
    for (const Format& format : formats) {
        if (name.ends_with(format.ending)) {
            return &format;
        }
    }
    return nullptr;
}

}  // namespace

bool localSxlExport(const localSxlSheet& sheet, std::u16string_view fileName,
                    std::u16string& fault) {
    const Format* const format = formatOf(fileName);
    if (format == nullptr) {
        fault = u"Неизвестный формат файла [" + std::u16string(fileName) +
                u"]: нужен .pdf, .html, .csv или .xlsx";
        return false;
    }
    fault.clear();
    const std::u16string target = localPlatform::plainFile(fileName);
    const std::u16string beside = target + u".new";
    if (!target.empty() &&
        format->write(sheet, localPlatform::fileNameToBytes(localPlatform::normalizedPath(beside)),
                      fault) &&
        localPlatform::replaceFile(target, beside)) {
        return true;
    }
    localPlatform::removeFile(beside);
    if (fault.empty()) {
        fault = u"Ошибка записи файла [" + std::u16string(fileName) + u"]";
    }
    return false;
}

bool localSxlWithinBounds(const localSxlSheet& sheet, std::u16string& fault) {
    const localSxlCells& cells = sheet.cells();
    if (cells.lastRow() <= localSxlMostRows && cells.lastColumn() <= localSxlMostColumns) {
        return true;
    }
    fault = u"В этом формате не больше 1048576 строк и 16384 колонок";
    return false;
}

bool localSxlWritePdf(const localSxlSheet& sheet, const std::string& file, std::u16string&) {
    QFile output(QFile::decodeName(QByteArray::fromStdString(file)));
    if (!output.open(QIODevice::WriteOnly)) {
        return false;
    }
    bool isWritten = false;
    {
        QPdfWriter pdf(&output);
        pdf.setResolution(1200);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
        pdf.setCreator(QStringLiteral("Korvo"));
        isWritten = localSxlPagesPaint(sheet, pdf);
    }
    return isWritten && output.flush() && output.error() == QFileDevice::NoError;
}
