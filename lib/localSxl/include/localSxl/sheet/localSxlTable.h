// A value table as a sheet.
#pragma once

class localSxlSheet;
class localValueTable;

// Fills an empty sheet: the names of the columns as a header in bold, then a row for each of the
// table's.
void localSxlFillFromTable(localSxlSheet& sheet, const localValueTable& table);
