#include "report/localDbReport.h"

#include <QSqlError>

#include "localDb/connection/localDbConnection.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "statement/localDbStatement.h"
#include "text/localDbText.h"

namespace {

constexpr std::u16string_view source = u"../lib/localDb";

std::u16string location(std::string_view function, std::source_location place,
                        std::u16string_view lineEnd) {
    return localDbWords(u"func: ", localString::fromUtf8(function), lineEnd, u" file: ", source,
                        lineEnd, u" line: ", localDbNumber(place.line()), lineEnd, lineEnd);
}

}  // namespace

std::u16string localDbPlainLocation(std::string_view function, std::source_location place) {
    return location(function, place, u"\n");
}

std::u16string localDbHtmlLocation(std::string_view function, std::source_location place) {
    return location(function, place, u"<BR/>");
}

std::u16string localDbTraceHead(std::string_view function, std::source_location place) {
    return localDbWords(u"func: ", localString::fromUtf8(function), u" file: ", source, u" line: ",
                        localDbNumber(place.line()));
}

void localDbTell(localReport::Kind kind, std::u16string_view title, std::u16string text,
                 localReport::Form form) {
    localHost::current().report(
        {.kind = kind, .title = std::u16string(title), .text = std::move(text), .form = form});
}

void localDbTellPlain(localReport::Kind kind, std::string_view function, std::u16string_view text,
                      std::source_location place) {
    localDbTell(kind, localString::fromUtf8(function),
                localDbWords(localDbPlainLocation(function, place), text));
}

void localDbTellHtml(localReport::Kind kind, std::string_view function, std::u16string_view text,
                     std::source_location place) {
    localDbTell(kind, localString::fromUtf8(function),
                localDbWords(localDbHtmlLocation(function, place), text), localReport::Form::html);
}

bool localDbAsk(std::u16string_view title, std::u16string text) {
    using Button = localReport::Button;
    return localHost::current().report({.kind = localReport::Kind::question,
                                        .title = std::u16string(title),
                                        .text = std::move(text),
                                        .buttons = {Button::ok, Button::cancel},
                                        .defaultButton = Button::cancel,
                                        .form = localReport::Form::html}) == Button::ok;
}

localDbErrors::localDbErrors(std::u16string_view connection, const QSqlQuery& query,
                             std::u16string_view sql) {
    const QSqlDatabase database = localDbConnection::database(connection);
    const QSqlError ofConnection = database.lastError();
    connectionDatabase = ofConnection.databaseText().toStdU16String();
    connectionDriver = ofConnection.driverText().toStdU16String();
    queryDatabase = database.isOpen() ? localDbUnfitText(sql) : u"The connection is not open.";
    if (queryDatabase.empty()) {
        queryDatabase = query.lastError().databaseText().toStdU16String();
        queryDriver = query.lastError().driverText().toStdU16String();
    }
}

std::u16string localDbLabelled(const localDbErrors& errors) {
    return localDbWords(u"Db databaseText   : ", errors.connectionDatabase, u"\n",
                        u"Db driverText     : ", errors.connectionDriver, u"\n",
                        u"Query databaseText: ", errors.queryDatabase, u"\n",
                        u"Query  driverText : ", errors.queryDriver, u"\n");
}

void localDbTellStatement(std::string_view function, std::u16string_view sql,
                          const localDbErrors& errors, std::source_location place) {
    localDbTellPlain(localReport::Kind::critical, function,
                     localDbWords(u"Unable to execute query \n", u"SQL : ", sql, u"\n\n",
                                  localDbLabelled(errors)),
                     place);
}

void localDbTellFailed(std::string_view function, std::u16string_view sql,
                       std::source_location place) {
    localDbTellPlain(localReport::Kind::warning, function,
                     localDbWords(u"Ошибка при выполнении запроса: \n\n", sql), place);
}

bool localDbUsable(std::u16string_view connection, std::string_view function,
                   const localDbUnknown& whenUnknown, std::source_location place) {
    if (!localDbConnection::exists(connection)) {
        const std::u16string words =
            localDbWords(whenUnknown.before, connection, whenUnknown.behind);
        if (whenUnknown.title.empty()) {
            localDbTellHtml(localReport::Kind::warning, function, words, place);
        } else {
            localDbTell(localReport::Kind::warning, whenUnknown.title, words);
        }
        return false;
    }
    if (!localDbConnection::isHere(connection)) {
        localDbTellPlain(localReport::Kind::warning, function,
                         localDbWords(u"Connection ", connection, u" belongs to another thread!"),
                         place);
        return false;
    }
    return true;
}
