#include "localInterpretatorUTF8/value/localMethodTable.h"

#include <string>

#include "localInterpretatorUTF8/value/localSlot.h"

namespace {

bool typeFits(char letter, const localValueDescription& value) {
    switch (letter) {
        case 's':
            return value.type == localValueTypeSTRING;
        case 'n':
        case 'i':
            return value.type == localValueTypeNUMBER;
        case 'b':
            return value.type == localValueTypeBOOLEAN;
        case 'o':
            return value.type == localValueTypeOBJECT;
        case 'l':
            return isClass(value, u"VALUELIST");
        case 't':
            return isClass(value, u"VALUETABLE");
        default:
            return true;
    }
}

const localAttributeRow* attributeFind(const localClassTable& table, std::u16string_view name) {
    for (const localAttributeRow& row : table.attributes) {
        if (name == row.english || (!row.russian.empty() && name == row.russian)) {
            return &row;
        }
    }
    return nullptr;
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

bool localHandlerRun(localCall& call, std::string_view pattern, localHandler handler) {
    if (handler == nullptr) {
        return call.fail(localErrorTypeMETHODUNKNOWN);
    }
    return localArgumentsCheck(call.status, pattern, call.args) && handler(call);
}

bool localTableMethod(const localClassTable& table, localClassDeclaration* declaration, int& status,
                      localContextUTF8* context, void*& object, std::u16string_view name,
                      const localArguments* args, localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(std::u16string(table.nativeName) +
                     u"::classImplementationMethodFunction() result must be NULL!");
    }
    status = localErrorTypeOK;
    if (object != nullptr && name == u"~") {
        // The one call without a result: it may come when memory ran out.
        table.native.destroy(object);
        return true;
    }
    result = localMemoryManager::manager->reserveSlot();
    if (object == nullptr) {
        if (!name.empty()) {
            status = localErrorTypeSTATICCALL;
            return false;
        }
        object = table.native.construct == nullptr ? nullptr : table.native.construct(context);
        if (object == nullptr) {
            status = localErrorTypeNOCONSTRUCTOR;
            return false;
        }
        result->objectBind(object, declaration);
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
    localCall call{status, context, object, name, *args, *result};
    return localHandlerRun(call, entry->row->arguments, entry->handler);
}

bool localTableAttributeGet(const localClassTable& table, int& status, localContextUTF8* context,
                            void* object, std::u16string_view name,
                            localValueDescription*& result) {
    if (result != nullptr) {
        exit_FAILURE(std::u16string(table.nativeName) +
                     u"::classImplementationAttribGetFunction() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    localCall call{status, context, object, name, {}, *result};
    const localAttributeRow* const row = attributeFind(table, name);
    if (row == nullptr) {
        call.give(localErrorTypeATTRIBUTEunknown);
        return call.fail(localErrorTypeATTRIBUTEWRONG);
    }
    return row->get == nullptr ? call.fail(localErrorTypeATTRIBUTENOTREADABLE) : row->get(call);
}

bool localTableAttributeSet(const localClassTable& table, int& status, localContextUTF8* context,
                            void* object, std::u16string_view name,
                            const localValueDescription* newValue) {
    // A handler reads its arguments only.
    localValueDescription* const values[] = {const_cast<localValueDescription*>(newValue)};
    localValueDescription nothing;
    localCall call{status, context, object, name, values, nothing};
    const localAttributeRow* const row = attributeFind(table, name);
    if (row == nullptr) {
        return call.fail(localErrorTypeATTRIBUTEWRONG);
    }
    return row->set == nullptr ? call.fail(localErrorTypeATTRIBUTENOTWRITEABLE)
                               : localHandlerRun(call, row->value, row->set);
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
                           localMethodFunction method, localAttribGetFunction attributeGet,
                           localAttribSetFunction attributeSet) {
    declaration.nameEng = table.nameEng;
    declaration.nameRus = table.nameRus;
    declaration.description = table.description;
    declaration.classImplementationLinkFunction = table.native.link;
    declaration.classImplementationMethodFunction = table.classWideMethods ? method : nullptr;
    declaration.classImplementationAttribGetFunction = table.classWideAttributes;
    declaration.memberAdd(
        {u"", table.native.construct == nullptr ? nullptr : method, nullptr, nullptr});
    declaration.memberAdd({u"~", method, nullptr, nullptr});
    const auto add = [&](std::u16string_view english, std::u16string_view russian,
                         localClassMember member) {
        member.name = english;
        declaration.memberAdd(member);
        if (!russian.empty() && table.memberNames == localMemberNames::both) {
            member.name = russian;
            declaration.memberAdd(std::move(member));
        }
    };
    for (const localAttributeRow& row : table.attributes) {
        add(row.english, row.russian,
            {{},
             nullptr,
             row.set == nullptr ? nullptr : attributeSet,
             row.get == nullptr ? nullptr : attributeGet});
    }
    for (const localMethodRow& row : table.methods) {
        add(row.english, row.russian, {{}, method, nullptr, nullptr});
    }
}
