// A directory: a table whose rows lie in folders of the same table.
//
// It is shown flat, sorted over the whole table, or hierarchical, one folder at a time under the
// path to it, which is pinned above the rows. The table's columns id, parentid and isfolder stand
// among the expressions. Of a table T the index T_DESCR serves the flat order and T_PDESCR, which
// begins with parentid and isfolder, that inside folders; a column may have such a pair of its own.
#pragma once

#include <QPixmap>

#include "localDbVcl/browse/localDbtBrowseWidget200123.h"

class localRefBrowsePosition;

class localRefBrowseWidget200123 : public localDbtBrowseWidget200123 {
    Q_OBJECT

public:
    // As of localDbtBrowseWidget200123. Stands in the flat order of the description.
    localRefBrowseWidget200123(std::shared_ptr<DataSource> dataSource, Columns columns,
                               localDbtBrowsePurpose purpose, localContextUTF8* context = nullptr);
    ~localRefBrowseWidget200123() override;

    bool isHierarchical() const;
    // Changes the regime around the record under the cursor. Nothing where the table has no
    // hierarchical order.
    void setHierarchical(bool on);
    // In the folder in view, when there is one.
    bool findFast(const QString& text) override;
    std::u16string idxNameOfColumn(std::size_t column) const override;
    QList<Key> keys() const override;

protected:
    bool browseKey(const QKeyEvent& event) override;
    void indexesFind() override;

private:
    localRefBrowsePosition& place() const;
};
