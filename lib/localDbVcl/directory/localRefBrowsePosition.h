// Where a browse of a directory stands: in its flat order, or inside one of its folders under the
// path that leads there, whose rows are pinned above the data rows.
//
// The folder in view is the one fixed key value of the data source; the path is part of headRows,
// so that all moves of the cursor work under it as they do without.
#pragma once

#include <QString>

#include <cstddef>
#include <vector>

#include "browse/localDbtBrowsePosition.h"

class localRefBrowsePosition : public localDbtBrowsePosition {
public:
    using Row = localDbDataSource200123::Row;
    using Index = localDbDataSource200123::Index;

    // Stands on the first row in the order of the description.
    localRefBrowsePosition(localDbDataSource200123& source, std::uint32_t visibleRows);

    // The pinned path, root first.
    std::vector<Row> ancestors;
    // Numbers of the expressions of these columns of the main table; past the last expression where
    // there is none.
    std::size_t colIsFolder;
    std::size_t colParentId;
    // The index of the regime that is not in force; null when the table has none.
    const Index* otherIdx;

    // Whether the rows of one folder are shown.
    bool isHierarchical() const;
    // Changes the regime around the record under the cursor.
    void setHierarchical(bool on);
    // Goes into the folder under the cursor. False when there is none, or no folder is in view.
    bool enterFolder();
    // Goes to the folder around the one in view. False at the root.
    bool leaveFolder();
    // As find, in the folder in view: in both of its parts, things and folders.
    bool findInFolder(const Index& index, std::u16string_view text);

    bool isFolder(std::size_t bufferRow) const;
    // An expression of the pinned row on a screen row; empty where none is pinned.
    QString pinnedCell(std::uint32_t screenRow, std::size_t expression) const;

private:
    // The number of the expression of a main table's column.
    std::size_t columnNumber(std::u16string_view column) const;
    // The row of an id and of the folders around it, root first.
    std::vector<Row> pathTo(qint64 id) const;
    void showFolder(std::u16string id);

    std::size_t colId_;
};
