#include "localDbVcl/manager/localDbWindowFile.h"

#include <QFileInfo>

#include "localDb/connection/localDbConnection.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/text/localVclText.h"

localDbWindowFile::localDbWindowFile(std::u16string connection)
    : connection_(std::move(connection)), file_(fileNow()) {}

QString localDbWindowFile::fileNow() const {
    if (!localDbConnection::exists(connection_) || !localDbConnection::isHere(connection_)) {
        // Whoever uses it is told so.
        return file_;
    }
    return QFileInfo(localDbConnection::database(connection_).databaseName()).absoluteFilePath();
}

bool localDbWindowFile::stands() const {
    return fileNow() == file_;
}

bool localDbWindowFile::check() const {
    if (stands()) {
        return true;
    }
    const QString text = QStringLiteral("This window shows the file\n%1\n\nConnection %2 is open "
                                        "for another file now:\n%3")
                             .arg(file_, localVclQString(connection_), fileNow());
    localHost::current().report({.kind = localReport::Kind::warning,
                                 .title = u"dbManage()",
                                 .text = text.toStdU16String()});
    return false;
}
