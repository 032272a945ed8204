// Windows for looking into a data file without a program: the list of its objects, the rows of a
// table, the structure of a table.
//
// They work on the connection "dbMain", on the windows' thread, outside of the language. A window
// belongs to the file that it was opened on and does nothing when the connection has gone over to
// another one. All that is told goes through the host.
#pragma once

#include <string>
#include <string_view>

#include "localDb/localDb.h"

class localDbtQTableView;
class QWidget;

// Opens a file, or the data file for an empty name, and shows the list of its objects in a window
// titled "dbManage()". False, after a box, when there is no such file or it cannot be read.
bool dbManage(std::u16string_view fileName);

// The rows of a table. Null, after a box, when they cannot be read. The caller owns the view.
localDbtQTableView* dbTableBrowse(std::u16string_view connection, std::u16string_view table);
// The same in a window of its own; null when there is none.
QWidget* dbTableBrowseShow(std::u16string_view connection, std::u16string_view table);

// Lets a person choose a table in a dialog, and writes how the dialog ended. Where none was chosen
// it is the table of the samples, "Ref03".
std::u16string dbTableChoose(std::u16string_view connection);
// Sample: the rows of a table that a person chooses.
void test09();

// Shows the structure of an object in a dialog and builds a table anew when its fields were
// changed. Indexes and triggers that go with the old table are named before and made anew when the
// person wants them. Open windows on the table read it again.
void dbStructureModify(std::u16string_view connection, const localDbObject& object);

// A text of fields in HTML, for debugging: name, type, length and decimals, a line each.
std::u16string dbFieldsDump(const localDb::Fields& fields);
