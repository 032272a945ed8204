#include "memory/memoryState.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <vector>

#include "localInterpretatorUTF8/classes/localClassForTest.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/value/localCounters.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#ifdef KORVO_SHEETS
#include "localSxl/json/localSxlText.h"
#include "localSxl/sheet/localSxlSheet.h"
#endif

namespace {

constexpr int deepest = 20;

std::string utf8(std::u16string_view text) {
    return localPlatform::fileNameToBytes(text);
}

std::string ofList(const localValueList& list, int depth) {
    std::string text = "list of " + std::to_string(list.size());
    for (const localValueListItem& item : list.items()) {
        text += "\n" + std::string(static_cast<std::size_t>(depth) * 2, ' ') +
                utf8(item.presentation) + " (found at " +
                std::to_string(list.positionOf(item.presentation)) +
                "): " + memoryStateOf(item.value, depth + 1);
    }
    return text;
}

std::string ofTable(const localValueTable& table, int depth) {
    std::string text = "table, row " + std::to_string(table.rowActual) + ", columns";
    for (std::size_t i = 1; i <= table.columnsCount(); ++i) {
        const localText name = table.columnName(i);
        text += " " + utf8(name) + "/" + std::to_string(table.columnNumber(name));
    }
    for (std::size_t row = 0; row < table.rowsCount(); ++row) {
        text += "\nrow";
        for (std::size_t column = 0; column < table.columnsCount(); ++column) {
            text += " | " + memoryStateOf(table.cell(row, column), depth + 1);
        }
    }
    return text;
}

#ifdef KORVO_SHEETS
std::string ofSheet(const localSxlSheet& sheet) {
    int status = localErrorTypeOK;
    localText json;
    localSxlToJson(status, sheet, json);
    std::string text = utf8(json) + " saved as " + utf8(sheet.fileName()) + " rows of " +
                       std::to_string(sheet.rowHeight(1)) + " columns";
    for (const auto& [column, width] : sheet.columnWidths()) {
        text += " " + std::to_string(column) + ":" + std::to_string(width);
    }
    for (const localSxlCell& cell : sheet.cells().all()) {
        text += cell.image == nullptr ? "" : " picture " + std::to_string(cell.image->width());
    }
    return text;
}
#endif

}  // namespace

std::string memoryStateOf(const localValueDescription& value, int depth) {
    if (value.type != localValueTypeOBJECT) {
        return utf8(value.typeName()) + " " + utf8(value.toString());
    }
    std::string text = utf8(value.typeName()) + " ";
    if (value.isLive()) {
        text += "held " + std::to_string(value.objectLinks()) + " times ";
    }
    if (depth > deepest) {
        return text;
    }
    if (const localValueList* list = localValueList::of(value)) {
        return text + ofList(*list, depth);
    }
    if (const localValueTable* table = localValueTable::of(value)) {
        return text + ofTable(*table, depth);
    }
#ifdef KORVO_SHEETS
    if (const localSxlSheet* sheet = localSxlSheet::of(value)) {
        return text + ofSheet(*sheet);
    }
#endif
    if (isClass(value, *localClassForTest::classDeclaration())) {
        text += std::to_string(static_cast<const localClassForTest*>(value.pointer)->attribInt);
    }
    return text;
}

std::string memoryState(localContextUTF8& context) {
    std::vector<std::string> lines;
    for (const localVariableEntry& variable : context.variables()) {
        const bool isFound = context.varFind(variable.name) != nullptr;
        lines.push_back(utf8(variable.name) + (isFound ? " = " : " (not found) = ") +
                        memoryStateOf(*variable.value));
    }
    for (const localFunctionEntry& function : context.functions()) {
        int steps = 0;
        const bool isFound = context.funcFind(function.name, steps) != nullptr && steps == 0;
        lines.push_back(utf8(function.name) + (isFound ? "()" : "() (not found)"));
    }
    for (const localClassDeclaration* declaration : localContextUTF8::globalContext->classes()) {
        lines.push_back("class " + utf8(declaration->nameEng));
    }
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    std::ifstream file("case.txt", std::ios::binary);
    if (file) {
        text += "file [" + std::string(std::istreambuf_iterator<char>(file), {}) + "]\n";
    }
    return text;
}

std::string memoryCounts() {
    std::string text = "slots " + std::to_string(localMemoryManager::manager->getUsedCount());
    for (const localCounter& counter : localCounters()) {
        if (counter.total != nullptr) {
            text += ", " + std::string(counter.name) + " " + std::to_string(*counter.total);
        }
    }
    return text;
}
