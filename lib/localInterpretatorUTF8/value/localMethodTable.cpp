#include "localInterpretatorUTF8/value/localMethodTable.h"

#include <string>

#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

bool typeFits(char letter, const localValueDescription& value) {
    switch (letter) {
        case 's':
            return value.type == localValueTypeSTRING;
        case 'n':
            return value.type == localValueTypeNUMBER;
        case 'b':
            return value.type == localValueTypeBOOLEAN;
        case 'o':
            return value.type == localValueTypeOBJECT;
        default:
            return true;
    }
}

}  // namespace

bool localArgumentsCheck(int& status, std::string_view pattern, localArguments args) {
    if (pattern == "?") {
        return true;
    }
    const bool repeats = pattern.ends_with('+');
    if (repeats) {
        pattern.remove_suffix(1);
    }
    const std::size_t bar = pattern.find('|');
    const std::size_t least = bar == std::string_view::npos ? pattern.size() : bar;
    const std::size_t most = bar == std::string_view::npos ? pattern.size() : pattern.size() - 1;
    if (args.size() < least || (args.size() > most && !repeats)) {
        status = localErrorTypePARAMETERCOUNT;
        return false;
    }
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::size_t place = i < most ? i : most - 1;
        const char letter = pattern[place < least ? place : place + 1];
        if (!typeFits(letter, *args[i])) {
            status = localErrorTypePARAMETERTYPE;
            return false;
        }
    }
    return true;
}

std::uint32_t localIndex(double value) {
    return value >= 1.0 && value < 4294967295.0 ? static_cast<std::uint32_t>(value) : 0;
}

bool localTableMethod(const localClassTable& table, localClassDeclaration* declaration, int& status,
                      localContextUTF8* context, void*& object, std::u16string_view name,
                      const localArguments* args, localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(std::u16string(table.nativeName) +
                     u"::classImplementationMethodFunction() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    status = localErrorTypeOK;
    if (object == nullptr) {
        if (!name.empty()) {
            status = localErrorTypeSTATICCALL;
            return false;
        }
        if (table.construct == nullptr) {
            status = localErrorTypeNOCONSTRUCTOR;
            return false;
        }
        object = table.construct();
        result->objectBind(object, declaration);
        return true;
    }
    if (name == u"~") {
        table.destroy(object);
        return true;
    }
    if (args == nullptr) {
        status = localErrorTypeCODE;
        return false;
    }
    const localMethodRows::Entry* entry = declaration->methodRows->find(name);
    if (entry == nullptr) {
        status = localErrorTypeMETHODUNKNOWN;
        return false;
    }
    if (!localArgumentsCheck(status, entry->row->arguments, *args)) {
        return false;
    }
    localCall call{status, context, object, name, *args, *result};
    return entry->handler(call);
}

bool localBroughtFromAbove(localCall& call) {
    return call.fail(localErrorTypeGRAPHICONLY);
}

localMethodRows::localMethodRows(std::span<const localMethodRow> rows) {
    for (const localMethodRow& row : rows) {
        put({&row, row.handler});
    }
}

void localMethodRows::put(const Entry& entry) {
    index_.put(entry.row->english, entry);
    if (!entry.row->russian.empty()) {
        index_.put(entry.row->russian, entry);
    }
}

bool localMethodRows::fill(std::u16string_view english, localHandler handler) {
    const Entry* const entry = find(english);
    if (entry == nullptr || entry->row->english != english) {
        return false;
    }
    put({entry->row, handler});
    return true;
}

void localDeclareFromTable(localClassDeclaration& declaration, const localClassTable& table,
                           localMethodFunction method) {
    declaration.nameEng = table.nameEng;
    declaration.nameRus = table.nameRus;
    declaration.description = table.description;
    declaration.classImplementationLinkFunction = table.link;
    declaration.classImplementationMethodFunction = table.classWideMethods ? method : nullptr;
    declaration.classImplementationAttribGetFunction = table.classWideAttributes;
    declaration.memberAdd({u"", table.construct == nullptr ? nullptr : method, nullptr, nullptr});
    declaration.memberAdd({u"~", method, nullptr, nullptr});
    for (const localAttributeRow& row : table.attributes) {
        declaration.memberAdd({std::u16string(row.name), nullptr, row.set, row.get});
    }
    for (const localMethodRow& row : table.methods) {
        declaration.memberAdd({std::u16string(row.english), method, nullptr, nullptr});
        if (!row.russian.empty() && table.memberNames == localMemberNames::both) {
            declaration.memberAdd({std::u16string(row.russian), method, nullptr, nullptr});
        }
    }
}
