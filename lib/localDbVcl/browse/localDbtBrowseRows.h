// The buffer of a data source as rows of a grid.
#pragma once

#include <memory>

#include "browse/localDbtBrowsePosition.h"
#include "localVCL/grid/localVclGridColumn.h"
#include "localVCL/grid/localVclGridRows.h"

class localDbtBrowseRows : public localVclGridRows {
public:
    explicit localDbtBrowseRows(std::shared_ptr<localDbDataSource200123> source)
        : source_(std::move(source)) {}

    bool needsTurn() const override { return false; }
    Number count() const override { return static_cast<Number>(source_->dataBuffer().size()); }
    bool enter(Number row) override {
        row_ = row;
        return row >= 0 && row < count();
    }
    QString text(const localVclGridColumn& column) override {
        return source_->cell(static_cast<std::size_t>(row_), expressionOf(column));
    }

protected:
    static std::size_t expressionOf(const localVclGridColumn& column) {
        return static_cast<std::size_t>(column.dataBuferColumn);
    }
    const localDbDataSource200123& source() const { return *source_; }
    Number row() const { return row_; }

private:
    std::shared_ptr<localDbDataSource200123> source_;
    Number row_ = 0;
};
