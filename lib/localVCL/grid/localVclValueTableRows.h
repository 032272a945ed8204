// The rows of a value table.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"
#include "localVCL/grid/localVclGridRows.h"

class localContextUTF8;
class localValueTable;

class localVclValueTableRows final : public localVclGridRows {
public:
    // Rows of the table that the value holds, which is kept. Made under the turn.
    explicit localVclValueTableRows(const localValueDescription& table);
    ~localVclValueTableRows() override;

    // From now on of the table that a variable holds; it is looked up in the scope that `scope`
    // gives, at each row.
    void setVariable(const std::u16string& name, std::function<localContextUTF8*()> scope);
    const std::u16string& variableName() const { return variableName_; }
    // Null when there is none. Under the turn.
    localValueTable* table() const;

    // The names of the table's columns; one without a name is "_____column_" and its number from 1.
    std::vector<std::u16string> columnNames() const;

    bool needsTurn() const override { return true; }
    Number count() const override { return count_; }
    bool enter(Number row) override;
    void leave(localContextUTF8* scope) override;
    QString headText() override;
    void putVariables(localContextUTF8& scope) override;

private:
    std::unique_ptr<localValueDescription> kept_;  // the table given; none of a variable
    localValueDescription entered_;                // the table while one of its rows is entered
    std::u16string variableName_;
    std::function<localContextUTF8*()> scope_;
    std::size_t row_ = 0;
    Number count_ = 0;
};
