// The reader of a flat object into a value table.
#include <vector>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "scanner/localCursor.h"
#include "json/localJsonText.h"

namespace localInterpretatorUTF8 {
namespace {

constexpr std::string_view functionName = "scanStringGetValueTableFromJson";

// Takes off again what was added to a table, unless it may stay.
class Addition {
public:
    explicit Addition(localValueTable& table)
        : table_(table), rows_(table.rowsCount()), columns_(table.columnsCount()) {}
    Addition(const Addition&) = delete;
    Addition& operator=(const Addition&) = delete;
    ~Addition() {
        if (!stays) {
            table_.cut(rows_, columns_);
        }
    }

    bool stays = false;

private:
    localValueTable& table_;
    std::size_t rows_;
    std::size_t columns_;
};

class TableReader {
public:
    TableReader(int& status, const std::u16string& text, localPosition pos)
        : cursor(text, pos), text_(text), status_(status) {}

    bool read(localValueTable& table) {
        levels_.push_back(levelOf(table));
        cursor.skipBlanks();
        Step step = !cursor.atEnd() && *cursor.at == u'{' ? open() : fault(u"ошибка");
        while (step == Step::member || step == Step::behindMember) {
            step = step == Step::member ? member() : behindMember();
        }
        return step == Step::done;
    }

    localCursor cursor;

private:
    // A table under construction, and the key that it will have in the one around it.
    struct Level {
        localValueTable* table;
        std::size_t keyColumn;
        std::size_t valueColumn;
        localText key;
        localValueDescription cell;  // holds an inner table; the outermost one has its own holder
    };

    // What comes next in the innermost object.
    enum class Step { member, behindMember, done, failed };

    static Level levelOf(localValueTable& table) {
        table.columnAdd(u"key");
        table.columnAdd(u"value");
        return {&table, table.columnNumber(u"key") - 1, table.columnNumber(u"value") - 1, {}, {}};
    }

    Step open() {
        ++cursor.at;
        cursor.skipBlanks();
        return at(u'}') ? close() : Step::member;
    }

    // The innermost object is whole and becomes a value of the one around it.
    Step close() {
        ++cursor.at;
        if (levels_.size() == 1) {
            return Step::done;
        }
        Level inner = std::move(levels_.back());
        levels_.pop_back();
        rowAdd(std::move(inner.key)).take(inner.cell);
        return Step::behindMember;
    }

    Step behindMember() {
        cursor.skipBlanks();
        if (at(u',')) {
            ++cursor.at;
            return Step::member;
        }
        return at(u'}') ? close() : fault(u"синтаксическая ошибка");
    }

    Step member() {
        localText key;
        cursor.skipBlanks();
        if (!quoted(key)) {
            return fault(u"синтаксическая ошибка");
        }
        cursor.skipBlanks();
        if (!at(u':')) {
            return fault(u"синтаксическая ошибка");
        }
        ++cursor.at;
        cursor.skipBlanks();
        if (at(u'{') && levels_.size() < jsonDeepest) {
            openInner(std::move(key));
            return open();
        }
        localText value;
        if (!quoted(value)) {
            return fault(u"синтаксическая ошибка");
        }
        rowAdd(std::move(key)).setVal(std::move(value));
        return Step::behindMember;
    }

    void openInner(localText key) {
        auto* table = new localValueTable;
        localValueDescription cell;
        cell.objectBind(table, localValueTable::classDeclaration());
        levels_.push_back(levelOf(*table));
        levels_.back().key = std::move(key);
        levels_.back().cell.take(cell);
    }

    // A new row of the innermost table with its key; gives the cell of the value.
    localValueDescription& rowAdd(localText key) {
        Level& level = levels_.back();
        const std::size_t row = level.table->rowAdd() - 1;
        level.table->cell(row, level.keyColumn).setVal(std::move(key));
        return level.table->cell(row, level.valueColumn);
    }

    bool at(char16_t unit) const { return !cursor.atEnd() && *cursor.at == unit; }

    bool quoted(localText& content) {
        if (!at(u'"')) {
            return false;
        }
        ++cursor.at;
        content = localJsonString(cursor, scratch_);
        if (cursor.atEnd()) {
            return false;
        }
        ++cursor.at;
        return true;
    }

    // The place of a fault, its column counted from 0, and the line of the text that it is in.
    Step fault(std::u16string_view what) {
        std::uint32_t lineStart = 0;
        const std::uint32_t line = lineOfPosition(text_, cursor.position(), lineStart);
        traceLine(std::u16string(what) + u" в строке " + numberToString(line) + u" позиция " +
                      numberToString(cursor.position() - lineStart),
                  functionName);
        const std::size_t lineEnd = text_.find(u'\n', lineStart);
        writeLine(std::u16string_view(text_).substr(lineStart, lineEnd - lineStart));
        status_ = localErrorTypeJSONPARSE;
        return Step::failed;
    }

    const std::u16string& text_;
    int& status_;
    std::vector<Level> levels_;
    std::u16string scratch_;
};

}  // namespace

bool scanStringGetValueTableFromJson(int& status, const std::u16string& text, localPosition& pos,
                                     localValueDescription& table) {
    localValueTable* outermost = localValueTable::of(table);
    if (outermost == nullptr) {
        status = localErrorTypePARAMETERTYPE;
        return false;
    }
    TableReader reader(status, text, pos);
    Addition addition(*outermost);
    const bool done = reader.read(*outermost);
    addition.stays = true;
    pos = reader.cursor.position();
    return done;
}

}  // namespace localInterpretatorUTF8
