// The live grid of a value table: it shows the table as it is, whatever programs do to it.
//
// The table is the one given, or that of a variable, which the layout names; then the grid keeps no
// table but looks at whatever the variable holds, and is empty while it holds none. Columns show
// the table's column of their id, a formula, or both: in the grid's scope the table's columns are
// variables that hold the row's cells, and the table's current row is that row.
#pragma once

#include "localVCL/grid/localVclGrid200123.h"

class localVclValueTableRows;

class localVclTestWidgetValueTable200617 : public localVclGrid200123 {
    Q_OBJECT

public:
    // `table` holds a value table, which the grid keeps; any other value is an empty table.
    localVclTestWidgetValueTable200617(const localValueDescription& table,
                                       localContextUTF8* context, QWidget* parent = nullptr);

    // The number of the row under the cursor, from 1; 0 when there is none.
    std::int64_t dataSousceId() const;
    // The variable that holds the table; empty for a table given.
    const std::u16string& variableName() const;

    void setCurrentCell(unsigned row, unsigned column) override;
    localValueDescription layoutAsValueListGet() override;

signals:
    // The cursor was put on a cell. The table's current row is the cursor's then, unless another
    // thread is in the language.
    void dataSousceIdChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    QString rowText(RowNumber row, int column) override;
    void layoutApply(const localValueList& grid) override;

private:
    localVclTestWidgetValueTable200617(std::unique_ptr<localVclValueTableRows> rows,
                                       localContextUTF8* context, QWidget* parent);
    void tableOfVariable(const std::u16string& name);
    void columnsOfTable();

    localVclValueTableRows* tableRows_;
};
