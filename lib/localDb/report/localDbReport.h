// The boxes in which the database code tells a person of a failure.
#pragma once

#include <QSqlQuery>

#include <source_location>
#include <string>
#include <string_view>

#include "localInterpretatorUTF8/host/localReport.h"

// The head of a box: function, source and the line of the reporting statement.
std::u16string localDbPlainLocation(std::string_view function,
                                    std::source_location place = std::source_location::current());
std::u16string localDbHtmlLocation(std::string_view function,
                                   std::source_location place = std::source_location::current());

// The same on one line, as diagnostics begin.
std::u16string localDbTraceHead(std::string_view function,
                                std::source_location place = std::source_location::current());

void localDbTell(localReport::Kind kind, std::u16string_view title, std::u16string text,
                 localReport::Form form = localReport::Form::plain);

// A box whose text begins with a location and whose title is the function's name.
void localDbTellPlain(localReport::Kind kind, std::string_view function, std::u16string_view text,
                      std::source_location place = std::source_location::current());
void localDbTellHtml(localReport::Kind kind, std::string_view function, std::u16string_view text,
                     std::source_location place = std::source_location::current());

// Asks in HTML; Cancel is the default. True for Ok.
bool localDbAsk(std::u16string_view title, std::u16string text);

// What connection and query say about the last statement.
struct localDbErrors {
    // `sql` is the statement that failed: one that never came to the driver says why.
    localDbErrors(std::u16string_view connection, const QSqlQuery& query, std::u16string_view sql);
    explicit localDbErrors(std::u16string text) : queryDatabase(std::move(text)) {}

    std::u16string connectionDatabase;
    std::u16string connectionDriver;
    std::u16string queryDatabase;
    std::u16string queryDriver;
};

// The four texts, a line each under its label.
std::u16string localDbLabelled(const localDbErrors& errors);

// The first box of a failed statement.
void localDbTellStatement(std::string_view function, std::u16string_view sql,
                          const localDbErrors& errors,
                          std::source_location place = std::source_location::current());

// The second box of a failed statement.
void localDbTellFailed(std::string_view function, std::u16string_view sql,
                       std::source_location place = std::source_location::current());

// The box for an unknown connection. It is put together only when it is shown: each statement has
// one at hand.
struct localDbUnknown {
    // Of the short form; the one with a place has the function's name.
    std::u16string_view title = {};
    std::u16string_view before = {};
    std::u16string_view behind = u" not found!";
};

// Whether a connection can be used here. One that belongs to another thread is told of; for one
// that nobody knows there is the box given.
bool localDbUsable(std::u16string_view connection, std::string_view function,
                   const localDbUnknown& whenUnknown,
                   std::source_location place = std::source_location::current());
