#include "directory/localRefBrowseSamples.h"

#include "browse/localDbtBrowseWindow.h"
#include "localDbVcl/directory/localRefBrowseWidget200123.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

using Source = localDbDataSource200123;
using Columns = localDbtBrowseWidget200123::Columns;

struct SampleColumn {
    const char16_t* caption;
    int expression;  // its number
    int width;
    const char16_t* idxName = u"";
    const char16_t* idxPName = u"";
};

struct Sample {
    const char16_t* title;
    std::vector<Source::Alias> aliases;
    std::vector<const char16_t*> expressions;
    std::vector<SampleColumn> columns;
};

std::shared_ptr<Source> sourceOf(const Sample& sample) {
    std::vector<Source::SqlExpression> expressions;
    expressions.reserve(sample.expressions.size());
    for (const char16_t* const expression : sample.expressions) {
        expressions.push_back({.sqlExpression = expression});
    }
    return Source::make(localDbConnection::mainName, sample.aliases, std::move(expressions), {},
                        u"", {});
}

Columns columnsOf(const Sample& sample) {
    Columns columns;
    for (const SampleColumn& one : sample.columns) {
        auto column = std::make_unique<localDbtBrowseColumn>();
        column->caption = QString::fromUtf16(one.caption);
        column->width = one.width;
        column->dataBuferColumn = one.expression;
        column->idxName = one.idxName;
        column->idxPName = one.idxPName;
        columns.push_back(std::move(column));
    }
    return columns;
}

template <typename Widget>
void show(const Sample& sample) {
    if (std::shared_ptr<Source> source = sourceOf(sample)) {
        localDbtBrowseShow(
            new Widget(std::move(source), columnsOf(sample), localDbtBrowsePurpose::look),
            QString::fromUtf16(sample.title));
    }
}

Sample goods() {
    return {.title = u"Товары",
            .aliases = {{.aliasName = u"tov", .dbtName = u"Ref03"}},
            .expressions = {u"tov.id", u"tov.parentid", u"tov.isfolder", u"tov.code", u"tov.descr",
                            u"tov.ismark", u"tov.CenaK", u"tov.Art", u"tov.KoefMin"},
            .columns = {{u"id", 0, 50},
                        {u"Код", 3, 70, u"Ref03_CODE", u"Ref03_PCODE"},
                        {u"Наименование", 4, 250, u"Ref03_DESCR", u"Ref03_PDESCR"},
                        {u"Родитель", 1, 70},
                        {u"ЦенаК", 6, 70},
                        {u"Арт", 7, 90},
                        {u"Коеф Мин", 8, 70}}};
}

// The goods again, as a table like any other.
void testTable() {
    writeLine(u"Использует класс localDbtBrowseWidget200123 с таблицей Ref03");
    show<localDbtBrowseWidget200123>(goods());
}

void test11() {
    writeLine(u"Использует класс localRefBrowseWidget200123 с таблицей Ref03");
    writeLine(u"Фактически моделирует работу справочника [Товары]");
    show<localRefBrowseWidget200123>(goods());
}

void test12() {
    writeLine(u"Использует класс localRefBrowseWidget200123 с таблицами Ref01 и Ref02");
    show<localRefBrowseWidget200123>(
        {.title = u"Прайс",
         .aliases = {{.aliasName = u"priceEl", .dbtName = u"Ref01"},
                     {.aliasName = u"Owner",
                      .dbtName = u"Ref02",
                      .leftJoinCondition = u"Owner.id=(priceEl.Owner & 281474976710655)"}},
         .expressions = {u"priceEl.id", u"priceEl.parentid", u"priceEl.isfolder", u"priceEl.code",
                         u"priceEl.descr", u"Owner.code", u"Owner.descr"},
         .columns = {{u"id", 0, 50},
                     {u"Код", 3, 70, u"Ref01_CODE", u"Ref01_PCODE"},
                     {u"Наименование", 4, 250, u"Ref01_DESCR", u"Ref01_PDESCR"},
                     {u"Код владельца", 5, 100},
                     {u"Владелец", 6, 150}}});
}

void test13() {
    writeLine(u"Использует класс localRefBrowseWidget200123 с таблицами Ref05 и Ref01");
    show<localRefBrowseWidget200123>(
        {.title = u"Аналоги",
         .aliases = {{.aliasName = u"Analog", .dbtName = u"Ref05"},
                     {.aliasName = u"tov1",
                      .dbtName = u"Ref01",
                      .leftJoinCondition = u"tov1.id =(Analog.Element & 281474976710655)"},
                     {.aliasName = u"tov2",
                      .dbtName = u"Ref01",
                      .leftJoinCondition = u"tov2.id=(Analog.Analog & 281474976710655)"}},
         .expressions = {u"Analog.id", u"Analog.parentid", u"Analog.isfolder", u"Analog.code",
                         u"tov1.descr", u"tov2.descr"},
         .columns = {{u"id", 0, 50},
                     {u"Код", 3, 70, u"Ref05_CODE", u"Ref05_PCODE"},
                     {u"Товар", 4, 200},
                     {u"Аналог", 5, 200}}});
}

}  // namespace

void test10(int sample) {
    constexpr void (*samples[])() = {testTable, test11, test12, test13};
    samples[sample - 1]();
}
