// The class VALUETABLE.
#include <vector>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

localValueTable& tableOf(const localCall& call) {
    return *static_cast<localValueTable*>(call.object);
}

bool giveCount(localCall& call, std::size_t count) {
    return call.give(static_cast<double>(count));
}

bool isColumnKey(const localValueDescription& value) {
    return value.type == localValueTypeNUMBER || value.type == localValueTypeSTRING;
}

// The number of a column that an argument gives by number or by name; 0 for an unknown name.
std::size_t columnAt(const localCall& call, std::size_t argument) {
    return call.args[argument]->type == localValueTypeSTRING
               ? tableOf(call).columnNumber(call.text(argument))
               : call.index(argument);
}

bool toStringMethod(localCall& call) {
    return call.give(tableOf(call).toStringTable());
}

// The one procedure whose result stays the number 0. Meant.
bool clear(localCall& call) {
    tableOf(call).clear();
    return true;
}

bool columnAdd(localCall& call) {
    return giveCount(call, tableOf(call).columnAdd(call.text(0)));
}

bool columnNameGet(localCall& call) {
    const std::size_t number = call.index(0);
    if (number == 0 || number > tableOf(call).columnsCount()) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    return call.give(tableOf(call).columnName(number));
}

bool columnNumberGet(localCall& call) {
    return giveCount(call, tableOf(call).columnNumber(call.text(0)));
}

bool columnParametersGet(localCall& call) {
    if (!isColumnKey(*call.args[0])) {
        return call.fail(localErrorTypePARAMETERTYPE);
    }
    return call.args[0]->type == localValueTypeSTRING
               ? columnNumberGet(call)
               : call.give(tableOf(call).columnName(call.index(0)));
}

bool columnsCount(localCall& call) {
    return giveCount(call, tableOf(call).columnsCount());
}

bool rowAdd(localCall& call) {
    return giveCount(call, tableOf(call).rowAdd(call.args.empty() ? 0 : call.index(0)));
}

bool rowActualGet(localCall& call) {
    return giveCount(call, tableOf(call).rowActual);
}

bool rowActualSet(localCall& call) {
    const std::uint32_t row = call.index(0);
    if (row == 0 || row > tableOf(call).rowsCount()) {
        return call.fail(localErrorTypeOUTOFRANGE);
    }
    tableOf(call).rowActual = row;
    return giveCount(call, row);
}

bool rowChoose(localCall& call) {
    const localValueTable& table = tableOf(call);
    std::size_t from = 0;
    std::size_t to = table.columnsCount();
    if (!call.text(0).empty()) {
        to = table.columnNumber(call.text(0));
        if (to == 0) {
            return call.fail(localErrorTypeOUTOFRANGE);
        }
        from = to - 1;
    }
    std::vector<std::u16string> lines(table.rowsCount());
    for (std::size_t row = 0; row < lines.size(); ++row) {
        for (std::size_t column = from; column < to; ++column) {
            lines[row] += table.cell(row, column).toString();
            lines[row] += u' ';
        }
    }
    const auto row = localHost::current().chooseRow(call.text(1), lines, 0);
    return row ? giveCount(call, *row) : call.fail(localErrorTypeGRAPHICONLY);
}

bool rowsCount(localCall& call) {
    return giveCount(call, tableOf(call).rowsCount());
}

bool sort(localCall& call) {
    return call.giveBoolean(tableOf(call).sort(call.text(0)));
}

bool valueGet(localCall& call) {
    if (!isColumnKey(*call.args[1])) {
        return call.fail(localErrorTypePARAMETERTYPE);
    }
    localSlot value;
    if (!tableOf(call).cellGet(call.status, call.index(0), columnAt(call, 1), value.asResult())) {
        return false;
    }
    call.result.take(*value);
    return true;
}

// The result is true in any case; only the status tells that there was no such cell. Meant.
bool valueSet(localCall& call) {
    if (!isColumnKey(*call.args[1])) {
        return call.fail(localErrorTypePARAMETERTYPE);
    }
    call.giveBoolean(true);
    return tableOf(call).cellSet(call.status, call.index(0), columnAt(call, 1), *call.args[2]);
}

bool fillFromJson(localCall& call) {
    localValueDescription table;
    table.objectBind(call.object, localValueTable::classDeclaration());
    localInterpretatorUTF8::localPosition position = 0;
    const bool filled = localInterpretatorUTF8::scanStringGetValueTableFromJson(
        call.status, call.args[0]->wStr.string(), position, table);
    call.giveBoolean(filled);
    return filled;
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"CLEAR", u"ОЧИСТИТЬ", "", clear},
    {u"COLUMNADD", u"КОЛОНКАДОБАВИТЬ", "s", columnAdd},
    {u"COLUMNNAMEGET", u"КОЛОНКАИМЯПОЛУЧИТЬ", "i", columnNameGet},
    {u"COLUMNNUMBERGET", u"КОЛОНКАНОМЕРПОЛУЧИТЬ", "s", columnNumberGet},
    {u"COLUMNPARAMETERSGET", u"КОЛОНКАПАРАМЕТРЫПОЛУЧИТЬ", "v", columnParametersGet},
    {u"COLUMNSCOUNT", u"КОЛОНКИКОЛИЧЕСТВО", "", columnsCount},
    {u"ROWADD", u"РЯДДОБАВИТЬ", "|i", rowAdd},
    {u"ROWACTUALGET", u"РЯДТЕКУЩИЙПОЛУЧИТЬ", "", rowActualGet},
    {u"ROWACTUALSET", u"РЯДТЕКУЩИЙУСТАНОВИТЬ", "i", rowActualSet},
    {u"ROWCHOOSE", u"РЯДВЫБРАТЬ", "ss", rowChoose},
    {u"ROWSCOUNT", u"РЯДЫКОЛИЧЕСТВО", "", rowsCount},
    {u"SHOW", u"ПОКАЗАТЬ", "", localBroughtFromAbove},
    {u"SORT", u"СОРТИРОВАТЬ", "s", sort},
    {u"VALUEGET", u"ЗНАЧЕНИЕПОЛУЧИТЬ", "iv", valueGet},
    {u"VALUESET", u"ЗНАЧЕНИЕУСТАНОВИТЬ", "ivv", valueSet},
    {u"FILLFROMJSON", u"", "s", fillFromJson},
};

// A name that is no method is a column, read from the current row.
bool columnRead(int& status, localContextUTF8*, void*& object, std::u16string_view name,
                localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(u"localContextUTF8::classImplementationMethodFunction() result must be NULL!");
    }
    status = localErrorTypeOK;
    const auto& table = *static_cast<const localValueTable*>(object);
    return table.cellGet(status, table.rowActual, table.columnNumber(name), result);
}

constexpr localClassTable table = {
    .nameEng = u"VALUETABLE",
    .nameRus = u"ТАБЛИЦАЗНАЧЕНИЙ",
    .description = u"класс ТаблицаЗначений",
    .nativeName = u"localValueTable",
    .native = localNativeOf<localValueTable>(),
    .methods = methods,
    .attributes = {},
    .classWideMethods = true,
    .classWideAttributes = columnRead,
};

}  // namespace

localClassDeclaration* localValueTable::classDeclaration() {
    return localTableClass<table>();
}
