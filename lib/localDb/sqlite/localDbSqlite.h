// What only SQLite understands: its driver, its pragmas and its catalogue.
#pragma once

#include <QSqlError>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

#include "index/localDbKeyColumn.h"

namespace localDbSqlite {

QString driver();
// How a file is opened: a locked file is reported at once, so that the wait is in our own hands.
QString connectOptions();

// Whether a statement failed because another process has locked the file.
bool isLocked(const QSqlError& error);
// Whether it failed for its own words, and not for the file.
bool isStatementAtFault(const QSqlError& error);

// A statement that reads the catalogue and nothing else.
std::u16string lookSql();
// All that the catalogue holds.
std::u16string objectsSql();
std::u16string fieldsSql(std::u16string_view table);
std::u16string indexNamesSql(std::u16string_view table);
std::u16string indexKeySql(std::u16string_view index);

// Whether renaming a table leaves alone what speaks of it, as it must when the name is one that
// views and triggers of a dropped table still use.
std::u16string renameAloneSql(bool alone);

// What makes a column the key of a new table.
inline constexpr std::u16string_view primaryKeyWords = u" PRIMARY KEY AUTOINCREMENT ";

// A name as it can stand in a statement: in double quotes when it is no plain word, or one of the
// language's own.
std::u16string word(std::u16string_view name);
// A name as the file has it: without the quotes of a statement.
std::u16string bareName(std::u16string_view name);

// A number past all others as a word of a statement.
inline constexpr std::u16string_view infinityWord = u"9e999";
// Bytes as a word of a statement, from hexadecimal digits.
std::u16string bytesWord(std::u16string_view digits);

// A text as a collation (BINARY, NOCASE, RTRIM) sees it: equal ones get the same letters.
QString folded(QString text, std::u16string_view collation);

// The columns of an index as they are compared and ordered: those of the key, then those that tell
// rows of one key apart, in the index's own order. Empty for an index that does not hold every row
// or stands on an expression.
struct IndexColumns {
    std::vector<localDbKeyColumn> columns;
    std::size_t keyCount = 0;
};
IndexColumns indexColumns(std::u16string_view connection, std::u16string_view table,
                          std::u16string_view index);

}  // namespace localDbSqlite
