#include "localDb/script/localDataBase.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlField>
#include <QSqlRecord>

#include <algorithm>

#include "localDb/localDb.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "script/localDbScript.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

using Names = std::vector<std::u16string>;

std::int64_t localDataBase::counterStaticTotal = 0;

localDataBase::localDataBase() : self_(this, [](localDataBase*) {}) {
    connections_.push_back(
        {std::make_unique<localDbConnection>(localDbConnection::nameForObject()), {}});
    ++counterStaticTotal;
}

localDataBase::~localDataBase() {
    --counterStaticTotal;
}

localDataBase::Connection& localDataBase::ofThisThread() {
    for (Connection& connection : connections_) {
        if (localDbConnection::isHere(connection.hold->name())) {
            return connection;
        }
    }
    for (Connection& connection : connections_) {
        // A further hold takes a connection over whose thread has ended, a program under DEBUG.
        const std::u16string& name = connection.hold->name();
        const localDbConnection taken(name);
        if (localDbConnection::isHere(name)) {
            connection.file.clear();
            return connection;
        }
    }
    return connections_.emplace_back(
        std::make_unique<localDbConnection>(localDbConnection::nameForObject()), std::u16string());
}

const localDbConnection& localDataBase::here() {
    Connection& connection = ofThisThread();
    if (connection.file != file_ && localDbConnection::open(connection.hold->name(), file_)) {
        connection.file = file_;
    }
    return *connection.hold;
}

bool localDataBase::connect(int& status) {
    const std::u16string file = localDb::applicationGetDataFullFileName();
    if (!QFileInfo::exists(localDbQString(localPlatform::normalizedPath(file)))) {
        traceLine(localDbWords(u"CONNECT() file ", file, u"not found!"), "connect");
        status = localErrorTypeFILENOTFOUND;
        return false;
    }
    // The line ends so. Meant.
    writeLine(localDbWords(u"CONNECT() try to connect fileNameForOpenQString=[", file,
                           u"]localDb::testDbInit выбран файл ["));
    Connection& connection = ofThisThread();
    file_ = file;
    connection.file = file;
    if (!localDb::connectionOpen(connection.hold->name(), file,
                                 "classImplementationMethodFunction")) {
        return false;
    }
    context.varRemoveAll();
    for (const std::u16string& name : connection.hold->tables().value_or(Names())) {
        localDbVariable(context, name)
            .objectBind(new localDataBaseTable(self_, name),
                        localDataBaseTable::classDeclaration());
    }
    return true;
}

bool localDataBase::hasTable(std::u16string_view table) {
    const Names names = here().tables().value_or(Names());
    return std::find(names.begin(), names.end(), table) != names.end();
}

bool localDataBase::fieldsToValueTable(std::u16string_view table, localValueTable& fields) {
    fields.clear();
    const localDbConnection& connection = here();
    const QSqlDatabase database = connection.isReadable() ? connection.database() : QSqlDatabase();
    // Other drivers give other names of types.
    if (database.driverName() != localDbSqlite::driver()) {
        return false;
    }
    for (const char16_t* const column : {u"Name", u"Type", u"Length", u"Precision"}) {
        fields.columnAdd(column);
    }
    const QSqlRecord record = database.record(localDbQString(table));
    for (int i = 0; i < record.count(); ++i) {
        const QSqlField field = record.field(i);
        const std::size_t row = fields.rowAdd() - 1;
        fields.cell(row, 0).setVal(localDbView(field.name()));
        fields.cell(row, 1).setVal(field.metaType().id());
        fields.cell(row, 2).setVal(field.length());
        fields.cell(row, 3).setVal(field.precision());
    }
    return !record.isEmpty();
}

std::u16string localDataBase::toStringBase() const {
    return localDbWords(u"База данных [", name(), u"] adr [", addressText(this), u"] ");
}
