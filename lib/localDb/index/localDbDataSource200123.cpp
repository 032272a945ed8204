#include "localDb/index/localDbDataSource200123.h"

#include <QSqlQuery>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "index/localDbKeyColumn.h"
#include "localDb/localDb.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

using Kind = localReport::Kind;

struct localDbDataSource200123::Shape {
    std::u16string connection;
    std::vector<Alias> aliases;
    std::vector<SqlExpression> sqlExpressions;
    std::vector<std::u16string> whereConditions;
    std::vector<std::u16string> fixedKeyValues;
};

localDbDataSource200123::Index::Index() = default;
localDbDataSource200123::Index::~Index() = default;

localDbDataSource200123::localDbDataSource200123(Shape shape)
    : connection_(std::move(shape.connection)),
      fixedKeyValues_(std::move(shape.fixedKeyValues)),
      sqlExpressions_(std::move(shape.sqlExpressions)),
      aliases_(std::move(shape.aliases)),
      whereConditions_(std::move(shape.whereConditions)) {}

localDbDataSource200123::localDbDataSource200123(std::u16string_view connection,
                                                 std::vector<Alias> aliases,
                                                 std::vector<SqlExpression> sqlExpressions,
                                                 std::vector<std::u16string> whereConditions,
                                                 std::u16string_view defaultIdxName,
                                                 std::vector<std::u16string> fixedKeyValues)
    : localDbDataSource200123({std::u16string(connection), std::move(aliases),
                               std::move(sqlExpressions), std::move(whereConditions),
                               std::move(fixedKeyValues)}) {
    if (!begin(defaultIdxName)) {
        // Nothing is torn down: other threads and their windows may be at work with it.
        std::fflush(nullptr);
        std::_Exit(1);
    }
}

std::unique_ptr<localDbDataSource200123> localDbDataSource200123::make(
    std::u16string_view connection, std::vector<Alias> aliases,
    std::vector<SqlExpression> sqlExpressions, std::vector<std::u16string> whereConditions,
    std::u16string_view defaultIdxName, std::vector<std::u16string> fixedKeyValues) {
    std::unique_ptr<localDbDataSource200123> made(new localDbDataSource200123(
        {std::u16string(connection), std::move(aliases), std::move(sqlExpressions),
         std::move(whereConditions), std::move(fixedKeyValues)}));
    return made->begin(defaultIdxName) ? std::move(made) : nullptr;
}

localDbDataSource200123::~localDbDataSource200123() = default;

bool localDbDataSource200123::begin(std::u16string_view defaultIdxName) {
    constexpr std::string_view function = "localDbDataSource200123";
    if (!localDbConnection::exists(connection_)) {
        localDbTellHtml(Kind::critical, function,
                        localDbWords(u"database ", connection_, u" not found!", u"<BR/>"));
        return false;
    }
    if (aliases_.empty()) {
        return true;
    }
    readIndexes();
    if (indexes_.empty()) {
        localDbTellHtml(Kind::warning, function,
                        localDbWords(u"<BR/> Для таблицы ", aliases_.front().dbtName, u" из БД ",
                                     connection_, u" не задано ни одного индексного файла!<BR/>"));
        return true;
    }
    const std::u16string wanted(defaultIdxName.empty() ? indexes_.front()->name : defaultIdxName);
    if (!setCurrent(wanted)) {
        localDbTellPlain(Kind::critical, function,
                         localDbWords(u"Не удалось установить индекс ", wanted));
        return false;
    }
    fillFromStart();
    return true;
}

const localDbDataSource200123::Index*
localDbDataSource200123::indexByName(std::u16string_view name) const {
    const auto found = std::find_if(indexes_.begin(), indexes_.end(),
                                    [&](const auto& index) { return index->name == name; });
    return found == indexes_.end() ? nullptr : found->get();
}

std::size_t localDbDataSource200123::expressionNumber(std::u16string_view sqlExpression) const {
    const auto found =
        std::find_if(sqlExpressions_.begin(), sqlExpressions_.end(),
                     [&](const SqlExpression& one) { return one.sqlExpression == sqlExpression; });
    return static_cast<std::size_t>(found - sqlExpressions_.begin());
}

void localDbDataSource200123::setFixedKeyValues(std::vector<std::u16string> values) {
    fixedKeyValues_ = std::move(values);
}

// --- Indexes

bool localDbDataSource200123::idxInit(std::u16string_view name) {
    readIndexes();
    return setCurrent(name) || (currentIdx_ != nullptr && !currentIdx_->keyFieldNames.empty());
}

bool localDbDataSource200123::setCurrent(std::u16string_view name) {
    const Index* const wanted = indexByName(name);
    if (wanted != nullptr) {
        currentIdx_ = wanted;
    }
    return wanted != nullptr;
}

void localDbDataSource200123::readIndexes() {
    if (aliases_.empty()) {
        return;
    }
    const std::u16string_view table = aliases_.front().dbtName;
    const std::vector<std::u16string> names = localDb::dbtGetIdxNames(connection_, table);
    if (names.empty()) {
        return;
    }
    currentIdx_ = nullptr;
    indexes_.clear();
    fields_ = localDb::dbtFieldsDescriptionsGet(connection_, table);
    for (const std::u16string& name : names) {
        localDbSqlite::IndexColumns described =
            localDbSqlite::indexColumns(connection_, table, name);
        if (described.keyCount == 0) {
            continue;
        }
        auto index = std::make_unique<Index>();
        index->name = name;
        index->columns = std::move(described.columns);
        const std::vector<std::u16string> keys =
            localDb::idxKeyFieldNamesGet(connection_, localDbSqlite::word(name));
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const auto field = std::find_if(
                fields_.begin(), fields_.end(),
                [&](const localDbFieldDescription& one) { return one.name == keys[i]; });
            if (field == fields_.end()) {
                localDbTellHtml(Kind::warning, "idxInit",
                                localDbWords(u"<BR/><BR/> Ключевое поле [", keys[i],
                                             u"] из индекса [", name, u"] ",
                                             u"<BR/><BR/> отсутствует в таблице ", table));
            } else {
                index->keyFields.push_back(&*field);
                index->columns[i].numeric = field->isNumeric();
            }
            index->keyFieldNames.push_back(mainName(localDbSqlite::word(keys[i])));
        }
        for (localDbKeyColumn& column : index->columns) {
            column.name = mainName(column.name);
        }
        indexes_.push_back(std::move(index));
    }
}

// --- Texts of statements

std::u16string localDbDataSource200123::mainName(std::u16string_view column) const {
    const std::u16string& alias = aliases_.front().aliasName;
    return alias.empty() ? std::u16string(column) : localDbWords(alias, u".", column);
}

std::u16string localDbDataSource200123::fromText() const {
    std::u16string text;
    for (const Alias& alias : aliases_) {
        const bool joined = &alias != &aliases_.front();
        text += localDbWords(joined ? u" left join " : u"", alias.dbtName, u" ", alias.aliasName);
        if (joined && !alias.leftJoinCondition.empty()) {
            text += localDbWords(u" on ", alias.leftJoinCondition);
        }
    }
    return text;
}

std::u16string
localDbDataSource200123::selectList(const std::vector<std::u16string>& keyNames) const {
    std::vector<std::u16string> lists;
    if (!keyNames.empty()) {
        lists.push_back(localDbJoined(keyNames, u", "));
    }
    for (const SqlExpression& one : sqlExpressions_) {
        lists.push_back(one.aliasName.empty()
                            ? one.sqlExpression
                            : localDbWords(one.sqlExpression, u" as ", one.aliasName));
    }
    return localDbJoined(lists, u",");
}

localDbDataSource200123::Row localDbDataSource200123::getTmpRowById(std::int64_t id) const {
    Row row;
    if (aliases_.empty()) {
        return row;
    }
    const std::u16string sql = localDbWords(
        u"select ",
        selectList(currentIdx_ == nullptr ? std::vector<std::u16string>()
                                          : currentIdx_->keyFieldNames),
        u" from ", fromText(), u" where ", mainName(localDbFieldDescription::PrimaryKeyName), u"=",
        localDbNumber(id), u";");
    QSqlQuery query;
    if (!localDb::dbQueryExec(connection_, sql, query)) {
        localDbTellFailed("getTmpRowById", sql);
        return row;
    }
    if (query.next()) {
        const std::size_t cells = sqlExpressions_.size() +
                                  (currentIdx_ == nullptr ? 0 : currentIdx_->keyFieldNames.size());
        for (std::size_t i = 0; i < cells; ++i) {
            row.push_back(query.value(static_cast<int>(i)).toString());
        }
    }
    return row;
}
