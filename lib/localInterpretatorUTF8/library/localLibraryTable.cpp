#include <array>

#include "library/localHandlers.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localLibrary {
namespace {

using namespace localHandlers;

// A row that nobody has given a function: its name is known, calling it answers status 27.
constexpr localHandler nothing = nullptr;

// Stands in the table where a higher library brings the function.
bool higherLibrary(localCall& call) {
    return call.fail(localErrorTypeGRAPHICONLY);
}

constexpr std::array table = std::to_array<localMethodRow>({
    // Strings
    {u"CHR", u"СИМВОЛ", "n", nothing},
    {u"FIND", u"НАЙТИ", "ss|n", nothing},
    {u"FORMAT", u"ФОРМАТ", "vs", nothing},
    {u"STRING", u"СТРОКА", "v", nothing},
    {u"STRINGLEN", u"СТРОКАДЛИНА", "s", nothing},
    {u"STRINGPARTFIND", u"СТРОКАЧАСТЬНАЙТИ", "ss|n", nothing},
    {u"STRINGPARTLEFT", u"СТРОКАЧАСТЬЛЕВАЯ", "sn", nothing},
    {u"STRINGPARTRIGHT", u"СТРОКАЧАСТЬПРАВАЯ", "sn", nothing},
    {u"STRINGPARTREPLACE", u"СТРОКАЧАСТЬЗАМЕНИТЬ", "sss|n", nothing},
    {u"STRINGSHOW", u"СТРОКАПОКАЗАТЬ", "v", higherLibrary},
    {u"STRINGTOUPPER", u"СТРОКАВВЕРХНИЙРЕГИСТР", "s", nothing},
    {u"UPPER", u"ВРЕГ", "s", nothing},
    {u"STRINGTRIMALL", u"СТРОКАСОКРЛП", "s", nothing},
    {u"STRINGTRIML", u"СТРОКАСОКРЛ", "s", nothing},
    {u"STRINGTRIMR", u"СТРОКАСОКРП", "s", nothing},
    // Numbers
    {u"ABS", u"", "n", nothing},
    {u"INT", u"ЦЕЛ", "n", nothing},
    {u"MAX", u"МАКС", "v+", nothing},
    {u"MIN", u"МИН", "v+", nothing},
    {u"NUMBER", u"ЧИСЛО", "v", nothing},
    {u"PI", u"", "", nothing},
    {u"RAND", u"СЛУЧАЙНОЕЧИСЛО", "", nothing},
    {u"ROUND", u"ОКР", "n|vv", nothing},
    {u"SQRT", u"КОРЕНЬКВАДРАТНЫЙ", "n", nothing},
    // Types and conversion
    {u"IIF", u"", "bvv", nothing},
    {u"ISEMPTYVALUE", u"ЭТОПУСТОЕЗНАЧЕНИЕ", "v", nothing},
    {u"VALUEISEMPTY", u"ЗНАЧЕНИЕПУСТОЕ", "v", nothing},
    {u"ISVALUELIST", u"ЭТОСПИСОКЗНАЧЕНИЙ", "v", nothing},
    {u"ISVALUETABLE", u"ЭТОТАБЛИЦАЗНАЧЕНИЙ", "v", nothing},
    {u"ISWINDOWS", u"", "", nothing},
    {u"PARSEJSON", u"РАЗОБРАТЬJSON", "s", nothing},
    {u"VALUEFROMJSON", u"ЗНАЧЕНИЕИЗJSON", "s", nothing},
    {u"VALUETOJSON", u"ЗНАЧЕНИЕВJSON", "v", nothing},
    {u"VALUETOSTRING", u"ЗНАЧЕНИЕВСТРОКУ", "?", nothing},
    {u"VALUETYPEASSTRING", u"ЗНАЧЕНИЕТИППОЛУЧИТЬКАКСТРОКА", "v", nothing},
    // Files and system
    {u"BASE64APPENDTOFILE", u"", "ss", nothing},
    {u"BASE64FROMFILE", u"", "s", nothing},
    {u"BINARYPATH", u"ПРОГРАММАПУТЬ", "", nothing},
    {u"CWD", u"КАТАЛОГРАБОЧИЙ", "|s", nothing},
    {u"DATECHOOSEASSTRING", u"ДАТАВЫБРАТЬКАКСТРОКА", "|s", higherLibrary},
    {u"DATETIMESYSTEMGETASSTRING", u"ДАТАВРЕМЯСИСТЕМНАЯПОЛУЧИТЬКАКСТРОКА", "", nothing},
    {u"FILEDELETE", u"ФАЙЛУДАЛИТЬ", "s", nothing},
    {u"FILEEXIST", u"ФАЙЛСУЩЕСТВУЕТ", "s", nothing},
    {u"FILES", u"ФАЙЛЫ", "|ss", nothing},
    {u"LOGWRITE", u"", "v", nothing},
    {u"MESSAGE", u"СООБЩИТЬ", "v", nothing},
    {u"MESSAGEBOX", u"ПРЕДУПРЕЖДЕНИЕ", "s|n", higherLibrary},
    {u"MODULELOAD", u"МОДУЛЬЗАГРУЗИТЬ", "s", nothing},
    {u"NETWORKREQUESTEXECSYNC", u"СЕТЬЗАПРОСВЫПОЛНИТЬСИНХРОННО", "ss|v", higherLibrary},
    {u"PATHEXIST", u"ПУТЬСУЩЕСТВУЕТ", "s", nothing},
    {u"SECONDS20000101", u"", "", nothing},
    {u"SECONDSTHISPROCESS", u"", "", nothing},
    {u"STRINGAPPENDTOFILE", u"СТРОКАДОБАВИТЬВФАЙЛ", "ss|s", nothing},
    {u"STRINGFROMFILE", u"СТРОКАИЗФАЙЛА", "s", nothing},
    {u"USERDIR", u"ПОЛЬЗОВАТЕЛЬКАТАЛОГ", "?", nothing},
    // Objects, classes and display
    {u"CLASSDISPLAY", u"КЛАССПОКАЗАТЬ", "s", nothing},
    {u"CLASSESDISPLAY", u"КЛАССЫПОКАЗАТЬ", "|s", nothing},
    {u"CLASSLOAD", u"КЛАССЗАГРУЗИТЬ", "s", localHandlers::classLoad},
    {u"CLASSLOADED", u"КЛАССЗАГРУЖЕН", "s", classLoaded},
    {u"COLOR", u"ЦВЕТ", "s", higherLibrary},
    {u"CONTEXTGET", u"КОНТЕКСТПОЛУЧИТЬ", "", contextGet},
    {u"CREATEOBJECT", u"СОЗДАТЬОБЪЕКТ", "s", createObject},
    {u"FORMEDIT", u"ФОРМАРЕДАКТИРОВАТЬ", "s", higherLibrary},
    {u"FORMOPEN", u"ФОРМАОТКРЫТЬ", "s|v", higherLibrary},
    {u"FUNCTIONSDISPLAY", u"ФУНКЦИИПОКАЗАТЬ", "|s", nothing},
    {u"MEMORYDISPLAY", u"ПАМЯТЬПОКАЗАТЬ", "", nothing},
    {u"MEMORYDISPLAYDATA", u"ПАМЯТЬПОКАЗАТЬДАННЫЕ", "|n", nothing},
    {u"MEMORYDISPLAYVARS", u"ПАМЯТЬПОКАЗАТЬПЕРЕМЕННЫЕ", "|sn", nothing},
    {u"PIXMAPASBASE64FROMFILEGET", u"", "s", higherLibrary},
    {u"PIXMAPASBASE64PARTGET", u"", "snn|nn", higherLibrary},
    {u"PIXMAPASBASE64SHOW", u"", "s", higherLibrary},
    // Developer entries
    {u"___TEST", u"", "|s", nothing},
    {u"___TEST__TEXTBROWSER", u"", "o", nothing},
    {u"___TEST00001", u"", "s", test00001},
});

std::array<localHandler, table.size()>& installed() {
    static std::array<localHandler, table.size()> handlers{};
    return handlers;
}

const localMethodRow* rowFind(std::u16string_view name) {
    static const localNameTable<const localMethodRow*> index = localMethodRowIndex(table);
    const auto* found = index.find(name);
    return found == nullptr ? nullptr : *found;
}

std::size_t placeOf(const localMethodRow* row) {
    return static_cast<std::size_t>(row - table.data());
}

}  // namespace

std::span<const localMethodRow> rows() {
    return table;
}

bool call(int& status, localContextUTF8* context, std::u16string_view name,
          const localArguments* args, localValueDescription*& result) {
    result = localMemoryManager::manager->reserveSlot();
    if (args == nullptr) {
        status = localErrorTypeCODE;
        return false;
    }
    const localMethodRow* row = rowFind(name);
    if (row == nullptr || row->handler == nothing) {
        status = localErrorTypeMETHODUNKNOWN;
        return false;
    }
    if (!localArgumentsCheck(status, row->arguments, *args)) {
        return false;
    }
    const localHandler higher = installed()[placeOf(row)];
    localCall callFacts{status, context, context, name, *args, *result};
    return (higher != nullptr ? higher : row->handler)(callFacts);
}

void install(std::u16string_view english, localHandler handler) {
    if (const localMethodRow* row = rowFind(english)) {
        installed()[placeOf(row)] = handler;
    }
}

}  // namespace localLibrary
