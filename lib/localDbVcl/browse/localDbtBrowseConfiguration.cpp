#include "browse/localDbtBrowseConfiguration.h"

#include <algorithm>
#include <cmath>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr double widestColumn = 10000;  // pixels

// Reads keys of a list. What is missing is remembered, so that it is asked for once at the end.
class Reader {
public:
    explicit Reader(const localValueList& list) : list_(list) {}

    bool hasAll() const { return hasAll_; }

    const localValueDescription* value(std::u16string_view key) {
        const localValueDescription* const found = list_.valueByPresentation(key);
        hasAll_ = hasAll_ && found != nullptr;
        return found;
    }
    std::u16string text(std::u16string_view key) {
        const localValueDescription* const found = value(key);
        return found == nullptr ? std::u16string() : found->toString().string();
    }
    QString words(std::u16string_view key) { return localVclQString(text(key)); }
    int number(std::u16string_view key, double most) {
        const localValueDescription* const found = value(key);
        const double held = found == nullptr ? 0 : found->toNumber();
        return std::isfinite(held) ? static_cast<int>(std::clamp(held, 0.0, most)) : 0;
    }

private:
    const localValueList& list_;
    bool hasAll_ = true;
};

// Gives each list in a list to `take`, which gives whether it had what it must. False where one has
// not, and where there is no list.
template <typename Take>
bool eachList(const localValueDescription* lists, Take take) {
    const localValueList* const all = lists == nullptr ? nullptr : localValueList::of(*lists);
    return all != nullptr && std::ranges::all_of(all->items(), [&](const auto& item) {
               const localValueList* const one = localValueList::of(item.value);
               return one != nullptr && take(*one);
           });
}

}  // namespace

std::optional<localDbtBrowseConfiguration>
localDbtBrowseConfiguration::of(const localValueList& list) {
    localDbtBrowseConfiguration read;
    const auto takeAlias = [&](const localValueList& one) {
        Reader reader(one);
        localDbDataSource200123::Alias& alias = read.aliases.emplace_back();
        alias.dbtName = reader.text(u"dbtName");
        alias.aliasName = reader.text(u"aliasName");
        alias.leftJoinCondition = reader.text(u"leftJoinCondition");
        return reader.hasAll();
    };
    const auto takeExpression = [&](const localValueList& one) {
        Reader reader(one);
        localDbDataSource200123::SqlExpression& expression = read.sqlExpressions.emplace_back();
        expression.sqlExpression = reader.text(u"sqlExpression");
        if (one.valueByPresentation(u"aliasName") != nullptr) {
            expression.aliasName = reader.text(u"aliasName");
        }
        return reader.hasAll();
    };
    const auto takeColumn = [&](const localValueList& one) {
        Reader reader(one);
        auto column = std::make_unique<localDbtBrowseColumn>();
        column->caption = reader.words(u"caption");
        column->dataBuferColumn = reader.number(u"dataBuferColumn", widestColumn);
        column->description = reader.words(u"description");
        column->width = std::max(1, reader.number(u"width", widestColumn));
        column->idxName = reader.text(u"idxName");
        read.columns.push_back(std::move(column));
        return reader.hasAll();
    };
    Reader reader(list);
    if (!eachList(reader.value(u"aliases"), takeAlias) ||
        !eachList(reader.value(u"sqlExpressions"), takeExpression)) {
        return std::nullopt;
    }
    read.defaultIdxName = reader.text(u"defaultIdxName");
    const localValueDescription* const columns = reader.value(u"gridColumns");
    if (!reader.hasAll()) {
        return std::nullopt;
    }
    if (localValueList::of(*columns) == nullptr) {
        localHost::current().report(
            {.title = u"newLocalDbtBrowseWidget200123", .text = u"!gridColumnsVL"});
        return std::nullopt;
    }
    if (!eachList(columns, takeColumn)) {
        return std::nullopt;
    }
    const localValueDescription* const mode = list.valueByPresentation(u"selectMode");
    if (mode != nullptr && mode->toNumber() == 1) {
        read.purpose = localDbtBrowsePurpose::select;
    }
    return read;
}
