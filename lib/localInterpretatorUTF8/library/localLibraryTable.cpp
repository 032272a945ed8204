#include <array>

#include "library/localFillable.h"
#include "library/localHandlers.h"
#include "localInterpretatorUTF8/library/localLibrary.h"
#include "localInterpretatorUTF8/status/localGuard.h"
#include "localInterpretatorUTF8/value/localSlot.h"

namespace localLibrary {
namespace {

using namespace localHandlers;

// A row that nobody has given a function: its name is known, calling it answers status 27.
constexpr localHandler nothing = nullptr;

constexpr std::array table = std::to_array<localMethodRow>({
    // Strings
    {u"CHR", u"СИМВОЛ", "n", chr},
    {u"FIND", u"НАЙТИ", "ss|n", findFromOffset},
    {u"FORMAT", u"ФОРМАТ", "vs", formatValue},
    {u"STRING", u"СТРОКА", "v", stringOf},
    {u"STRINGLEN", u"СТРОКАДЛИНА", "s", stringLen},
    {u"STRINGPARTFIND", u"СТРОКАЧАСТЬНАЙТИ", "ss|n", stringPartFind},
    {u"STRINGPARTLEFT", u"СТРОКАЧАСТЬЛЕВАЯ", "sn", stringPartLeft},
    {u"STRINGPARTRIGHT", u"СТРОКАЧАСТЬПРАВАЯ", "sn", stringPartRight},
    {u"STRINGPARTREPLACE", u"СТРОКАЧАСТЬЗАМЕНИТЬ", "sss|n", stringPartReplace},
    {u"STRINGSHOW", u"СТРОКАПОКАЗАТЬ", "v", stringShow},
    {u"STRINGTOUPPER", u"СТРОКАВВЕРХНИЙРЕГИСТР", "s", stringToUpper},
    {u"UPPER", u"ВРЕГ", "s", stringToUpper},
    {u"STRINGTRIMALL", u"СТРОКАСОКРЛП", "s", stringTrimAll},
    {u"STRINGTRIML", u"СТРОКАСОКРЛ", "s", stringTrimL},
    {u"STRINGTRIMR", u"СТРОКАСОКРП", "s", stringTrimR},
    // Numbers
    {u"ABS", u"", "n", absoluteValue},
    {u"INT", u"ЦЕЛ", "n", integerPart},
    {u"MAX", u"МАКС", "v+", largest},
    {u"MIN", u"МИН", "v+", smallest},
    {u"NUMBER", u"ЧИСЛО", "v", numberOf},
    {u"PI", u"", "", piConstant},
    {u"RAND", u"СЛУЧАЙНОЕЧИСЛО", "", randomNumber},
    {u"ROUND", u"ОКР", "n|vv", rounded},
    {u"SQRT", u"КОРЕНЬКВАДРАТНЫЙ", "n", squareRoot},
    // Types and conversion
    {u"IIF", u"", "bvv", iif},
    {u"ISEMPTYVALUE", u"ЭТОПУСТОЕЗНАЧЕНИЕ", "v", isEmptyValue},
    {u"VALUEISEMPTY", u"ЗНАЧЕНИЕПУСТОЕ", "v", valueIsEmpty},
    {u"ISVALUELIST", u"ЭТОСПИСОКЗНАЧЕНИЙ", "v", isValueList},
    {u"ISVALUETABLE", u"ЭТОТАБЛИЦАЗНАЧЕНИЙ", "v", isValueTable},
    {u"ISWINDOWS", u"", "", isWindows},
    {u"PARSEJSON", u"РАЗОБРАТЬJSON", "s", parseJson},
    {u"VALUEFROMJSON", u"ЗНАЧЕНИЕИЗJSON", "s", valueFromJson},
    {u"VALUETOJSON", u"ЗНАЧЕНИЕВJSON", "v", valueToJson},
    {u"VALUETOSTRING", u"ЗНАЧЕНИЕВСТРОКУ", "?", nothing},
    {u"VALUETYPEASSTRING", u"ЗНАЧЕНИЕТИППОЛУЧИТЬКАКСТРОКА", "v", valueTypeAsString},
    // Files and system
    {u"BASE64APPENDTOFILE", u"", "ss", base64AppendToFile},
    {u"BASE64FROMFILE", u"", "s", base64FromFile},
    {u"BINARYPATH", u"ПРОГРАММАПУТЬ", "", binaryPath},
    {u"CWD", u"КАТАЛОГРАБОЧИЙ", "|s", cwd},
    {u"DATECHOOSEASSTRING", u"ДАТАВЫБРАТЬКАКСТРОКА", "|s", dateChooseAsString},
    {u"DATETIMESYSTEMGETASSTRING", u"ДАТАВРЕМЯСИСТЕМНАЯПОЛУЧИТЬКАКСТРОКА", "",
     dateTimeSystemGetAsString},
    {u"FILEDELETE", u"ФАЙЛУДАЛИТЬ", "s", fileDelete},
    {u"FILEEXIST", u"ФАЙЛСУЩЕСТВУЕТ", "s", fileExist},
    {u"FILES", u"ФАЙЛЫ", "|ss", files},
    {u"LOGWRITE", u"", "v", logWriteValue},
    {u"MESSAGE", u"СООБЩИТЬ", "v", message},
    {u"MESSAGEBOX", u"ПРЕДУПРЕЖДЕНИЕ", "s|n", messageBox},
    {u"MODULELOAD", u"МОДУЛЬЗАГРУЗИТЬ", "s", moduleLoad},
    {u"NETWORKREQUESTEXECSYNC", u"СЕТЬЗАПРОСВЫПОЛНИТЬСИНХРОННО", "ss|v", localBroughtFromAbove},
    {u"PATHEXIST", u"ПУТЬСУЩЕСТВУЕТ", "s", pathExist},
    {u"SECONDS20000101", u"", "", seconds20000101},
    {u"SECONDSTHISPROCESS", u"", "", secondsThisProcess},
    {u"STRINGAPPENDTOFILE", u"СТРОКАДОБАВИТЬВФАЙЛ", "ss|s", stringAppendToFile},
    {u"STRINGFROMFILE", u"СТРОКАИЗФАЙЛА", "s", stringFromFile},
    {u"USERDIR", u"ПОЛЬЗОВАТЕЛЬКАТАЛОГ", "?", nothing},
    // Objects, classes and display
    {u"CLASSDISPLAY", u"КЛАССПОКАЗАТЬ", "s", classDisplay},
    {u"CLASSESDISPLAY", u"КЛАССЫПОКАЗАТЬ", "|s", classesDisplay},
    {u"CLASSLOAD", u"КЛАССЗАГРУЗИТЬ", "s", localHandlers::classLoad},
    {u"CLASSLOADED", u"КЛАССЗАГРУЖЕН", "s", classLoaded},
    {u"COLOR", u"ЦВЕТ", "s", localBroughtFromAbove},
    {u"CONTEXTGET", u"КОНТЕКСТПОЛУЧИТЬ", "", contextGet},
    {u"CREATEOBJECT", u"СОЗДАТЬОБЪЕКТ", "s", createObject},
    {u"FORMEDIT", u"ФОРМАРЕДАКТИРОВАТЬ", "s", localBroughtFromAbove},
    {u"FORMOPEN", u"ФОРМАОТКРЫТЬ", "s|v", localBroughtFromAbove},
    {u"FUNCTIONSDISPLAY", u"ФУНКЦИИПОКАЗАТЬ", "|s", functionsDisplay},
    {u"MEMORYDISPLAY", u"ПАМЯТЬПОКАЗАТЬ", "", memoryDisplay},
    {u"MEMORYDISPLAYDATA", u"ПАМЯТЬПОКАЗАТЬДАННЫЕ", "|n", memoryDisplayData},
    {u"MEMORYDISPLAYVARS", u"ПАМЯТЬПОКАЗАТЬПЕРЕМЕННЫЕ", "|sn", memoryDisplayVars},
    {u"PIXMAPASBASE64FROMFILEGET", u"", "s", localBroughtFromAbove},
    {u"PIXMAPASBASE64PARTGET", u"", "snn|nn", localBroughtFromAbove},
    {u"PIXMAPASBASE64SHOW", u"", "s", localBroughtFromAbove},
    // Developer entries
    {u"___TEST", u"", "|s", test},
    {u"___TEST__TEXTBROWSER", u"", "l", testTextBrowser},
    {u"___TEST00001", u"", "s", test00001},
    // No members, so listings leave them out, but calls reach them. The first answers the text of a
    // value that holds a context; the other is VALUETOSTRING under a name that switches it off.
    // Meant.
    {u"TOSTRING", u"", "", contextToString},
    {u"V1ALUETOSTRING", u"З1НАЧЕНИЕВСТРОКУ", "", contextToStringForTest},
});

constexpr std::size_t rowsWithoutMember = 2;

}  // namespace

std::span<const localMethodRow> rows() {
    return std::span(table).first(table.size() - rowsWithoutMember);
}

localMethodRows& functionRows() {
    static localMethodRows all(table);
    return all;
}

bool call(int& status, localContextUTF8* context, std::u16string_view name,
          const localArguments* args, localValueDescription*& result) {
    return localGuarded(status, name, [&] {
        result = localMemoryManager::manager->reserveSlot();
        if (args == nullptr) {
            status = localErrorTypeCODE;
            return false;
        }
        const localMethodRows::Entry* entry = functionRows().find(name);
        if (entry == nullptr) {
            status = localErrorTypeMETHODUNKNOWN;
            return false;
        }
        localCall callFacts{status, context, context, name, *args, *result};
        return localHandlerRun(callFacts, entry->row->arguments, entry->handler);
    });
}

}  // namespace localLibrary
