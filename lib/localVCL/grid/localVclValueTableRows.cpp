#include "grid/localVclValueTableRows.h"

#include <utility>

#include "grid/localVclGridScope.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclTurn.h"

namespace {

std::u16string nameOfColumn(const localValueTable& table, std::size_t number) {
    const localText name = table.columnName(number);
    return name.empty() ? u"_____column_" + std::u16string(localVclText(QString::number(number)))
                        : name.string();
}

}  // namespace

localVclValueTableRows::localVclValueTableRows(const localValueDescription& table)
    : kept_(std::make_unique<localValueDescription>(table)) {
    enter(0);
    leave(nullptr);
}

localVclValueTableRows::~localVclValueTableRows() {
    // The table may go with this, under the turn of the language, be it later.
    if (kept_ != nullptr) {
        localVclTurnWork::askOnce(
            [kept = std::shared_ptr<localValueDescription>(std::move(kept_))] {});
    }
}

void localVclValueTableRows::setVariable(const std::u16string& name,
                                         std::function<localContextUTF8*()> scope) {
    kept_.reset();
    variableName_ = name;
    scope_ = std::move(scope);
    enter(0);
    leave(nullptr);
}

localValueTable* localVclValueTableRows::table() const {
    if (kept_ != nullptr) {
        return localValueTable::of(*kept_);
    }
    localContextUTF8* const scope = scope_();
    const localVariableEntry* const variable =
        scope == nullptr ? nullptr : scope->varFind(variableName_);
    return variable == nullptr ? nullptr : localValueTable::of(*variable->value);
}

bool localVclValueTableRows::enter(Number row) {
    localValueTable* const shown = table();
    if (shown == nullptr) {
        entered_.reset();
        count_ = 0;
        return false;
    }
    // A formula may let go of the table.
    entered_.objectBind(shown, localValueTable::classDeclaration());
    count_ = static_cast<Number>(shown->rowsCount());
    if (row < 0 || row >= count_) {
        return false;
    }
    row_ = static_cast<std::size_t>(row);
    shown->rowActual = static_cast<std::uint32_t>(row + 1);
    return true;
}

void localVclValueTableRows::leave(localContextUTF8* scope) {
    if (const localValueTable* const shown = localValueTable::of(entered_);
        shown != nullptr && scope != nullptr) {
        for (std::size_t column = 1; column <= shown->columnsCount(); ++column) {
            localVclOwnVariable(*scope, nameOfColumn(*shown, column)).setVal(localText());
        }
    }
    entered_.reset();
}

QString localVclValueTableRows::headText() {
    return QString::number(row_ + 1);
}

std::vector<std::u16string> localVclValueTableRows::columnNames() const {
    std::vector<std::u16string> names;
    const localValueTable* const shown = table();
    for (std::size_t i = 1; shown != nullptr && i <= shown->columnsCount(); ++i) {
        names.push_back(nameOfColumn(*shown, i));
    }
    return names;
}

void localVclValueTableRows::putVariables(localContextUTF8& scope) {
    const localValueTable& shown = *localValueTable::of(entered_);
    // Of columns with one name the first counts: it is put last.
    for (std::size_t column = shown.columnsCount(); column > 0; --column) {
        localVclOwnVariable(scope, nameOfColumn(shown, column))
            .assign(shown.cell(row_, column - 1));
    }
}
