#include "localDbVcl/manager/localDbManager.h"

#include <QFileInfo>
#include <QSqlError>

#include <memory>

#include "localDbVcl/manager/localDbManagerTableView.h"
#include "localDbVcl/manager/localDbtQTableView.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclWindow.h"
#include "manager/localDbManagerLook.h"
#include "manager/localDbtRowsModel.h"

namespace {

constexpr QSize listSize{820, 420};  // pixels
constexpr const char16_t* sampleTable = u"Ref03";

void warn(std::u16string title, std::u16string text) {
    localHost::current().report(
        {.kind = localReport::Kind::warning, .title = std::move(title), .text = std::move(text)});
}

QWidget* showBody(QWidget* view, const QString& hint, QSize size, const QString& title) {
    QWidget* const body = localDbManagerBody(view, hint);
    body->resize(size);
    localVclWindowParameters parameters;
    parameters.title = title;
    return localVclWindowShow(body, parameters);
}

}  // namespace

bool dbManage(std::u16string_view fileName) {
    const std::u16string name =
        fileName.empty() ? localDb::applicationGetDataFullFileName() : std::u16string(fileName);
    const QFileInfo file(localVclQString(localPlatform::normalizedPath(name)));
    if (!file.isFile()) {
        warn(u"dbManage()", u"Файл " + name + u" не найден!");
        return false;
    }
    // With its folder: programs change the working directory.
    if (!localDb::testDbInit(localVclText(file.absoluteFilePath()))) {
        return false;
    }
    auto model =
        std::make_unique<localDbManagerTableModel>(std::u16string(localDbConnection::mainName));
    if (!model->isRead()) {
        return false;
    }
    auto* const view = new localDbManagerTableView(model.release());
    showBody(view,
             QStringLiteral("F4 opens a table · Shift+F4 structure · Delete removes · "
                            "F5 counts the rows"),
             listSize, QStringLiteral("dbManage()"));
    return true;
}

localDbtQTableView* dbTableBrowse(std::u16string_view connection, std::u16string_view table) {
    constexpr const char16_t* function = u"localDb::dbTableBrowse()";
    if (!localDbConnection::exists(connection)) {
        warn(function, std::u16string(connection) + u" not found!");
        return nullptr;
    }
    if (!localDbConnection::isHere(connection)) {
        warn(function,
             u"Connection " + std::u16string(connection) + u" belongs to another thread!");
        return nullptr;
    }
    auto view = std::make_unique<localDbtQTableView>(connection, table);
    const QSqlError error = view->rows().error();
    if (error.isValid()) {
        // A stroke for the backslash. Meant.
        warn(u"Warning", u"dbManagelocalDb::dbTableBrowse() " +
                             error.driverText().toStdU16String() + u"/n" +
                             error.databaseText().toStdU16String());
        return nullptr;
    }
    return view.release();
}

QWidget* dbTableBrowseShow(std::u16string_view connection, std::u16string_view table) {
    localDbtQTableView* const view = dbTableBrowse(connection, table);
    if (view == nullptr) {
        return nullptr;
    }
    return showBody(view,
                    QStringLiteral("F4 shows the record · Delete removes it · Ctrl+End reads "
                                   "to the end"),
                    view->sizeHint(),
                    localVclQString(table) + QLatin1Char('.') + localVclQString(connection));
}

std::u16string dbTableChoose(std::u16string_view connection) {
    std::vector<localDbObject> objects;
    std::vector<std::u16string> names;
    if (localDb::dbObjectsGet(connection, objects)) {
        for (const localDbObject& object : objects) {
            if (object.type == u"table") {
                names.push_back(object.name);
            }
        }
    }
    const std::size_t row =
        localHost::current().chooseRow(u"Выбор таблицы из БД ", names, 1).value_or(0);
    return row == 0 || row > names.size() ? sampleTable : names[row - 1];
}

void test09() {
    dbTableBrowseShow(localDbConnection::mainName, dbTableChoose(localDbConnection::mainName));
}

std::u16string dbFieldsDump(const localDb::Fields& fields) {
    QString text = QStringLiteral("<B> список полей в Fd</B> <BR/><BR/>");
    for (const localDbFieldDescription& field : fields) {
        text += QStringLiteral("<B>%1</B>  %2  %3  %4<BR/>")
                    .arg(localVclQString(field.getName()).toHtmlEscaped(),
                         localVclQString(field.getMyType()).toHtmlEscaped(),
                         QString::number(field.getLen()), QString::number(field.getDec()));
    }
    return text.toStdU16String();
}
