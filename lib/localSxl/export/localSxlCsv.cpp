// CSV: UTF-8 with its mark, ";" between cells, CR LF behind rows.
#include <QFile>

#include "export/localSxlFormats.h"
#include "localSxl/sheet/localSxlSheet.h"

namespace {

void putField(QByteArray& bytes, std::u16string_view text) {
    QString field = QStringView(text).toString();
    const bool isQuoted = text.find_first_of(u";\"\r\n") != text.npos;
    if (isQuoted) {
        field.replace(QLatin1Char('"'), QLatin1String("\"\""));
        bytes += '"';
    }
    bytes += field.toUtf8();
    if (isQuoted) {
        bytes += '"';
    }
}

}  // namespace

bool localSxlWriteCsv(const localSxlSheet& sheet, const std::string& file, std::u16string& fault) {
    QFile output(QFile::decodeName(QByteArray::fromStdString(file)));
    if (!localSxlWithinBounds(sheet, fault) || !output.open(QIODevice::WriteOnly)) {
        return false;
    }
    constexpr qsizetype enough = 1 << 20;
    bool isWritten = true;
    QByteArray bytes = "\xEF\xBB\xBF";
    localSxlPlace at{1, 1};
    localSxlEachCell(sheet.cells(), at, sheet.cells().lastRow(), [&](const localSxlCell& cell) {
        for (; at.row < cell.place.row; ++at.row) {
            bytes += "\r\n";
            at.column = 1;
        }
        for (; at.column < cell.place.column; ++at.column) {
            bytes += ';';
        }
        putField(bytes, cell.text);
        if (bytes.size() > enough) {
            isWritten = isWritten && output.write(bytes) == bytes.size();
            bytes.clear();
        }
    });
    bytes += sheet.cells().lastRow() == 0 ? "" : "\r\n";
    return isWritten && output.write(bytes) == bytes.size() && output.flush();
}
