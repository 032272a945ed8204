#include "index/localDbPasses.h"

#include <algorithm>

#include "localDb/field/localDbFieldDescription.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

using Kind = localDbKeyValue::Kind;
using Affinity = localDbKeyColumn::Affinity;

bool readsAsNumber(std::u16string_view text) {
    bool isNumber = false;
    localDbQString(text).toDouble(&isNumber);
    return isNumber;
}

// Bare numbers get a 0 in front, which makes a number of an empty value and keeps the sign apart.
std::u16string bare(std::u16string_view text) {
    return localDbWords(u"0", localDbView(localDbQString(text).trimmed()));
}

constexpr std::u16string_view infinityText = u"inf";

bool isInfinite(const localDbKeyValue& value) {
    return value.kind == Kind::number && value.text.ends_with(infinityText);
}

// A value as the file holds it.
std::u16string exactWord(const localDbKeyValue& value) {
    if (value.kind == Kind::bytes) {
        return localDbSqlite::bytesWord(value.text);
    }
    const bool isNumber =
        value.kind == Kind::number || (value.kind == Kind::given && readsAsNumber(value.text));
    if (!isNumber) {
        return localDbQuoted(value.text);
    }
    if (isInfinite(value)) {
        // The sign stays.
        return localDbWords(value.text.substr(0, value.text.size() - infinityText.size()),
                            localDbSqlite::infinityWord);
    }
    return value.text;
}

std::u16string valueWord(const localDbKeyColumn& column, const localDbKeyValue& value,
                         localDbTermForm form) {
    const bool isBare = form == localDbTermForm::byField
                            ? column.numeric
                            : column.name == localDbFieldDescription::PrimaryKeyName;
    const bool fits = value.kind == Kind::given ||
                      (value.kind == Kind::number && !isInfinite(value)) ||
                      (value.kind == Kind::text && !isBare);
    if (column.affinity == Affinity::none || !fits) {
        return exactWord(value);
    }
    // The value goes as it is: one with a quote in it breaks the statement, which a person is told.
    // Meant.
    return isBare ? bare(value.text) : localDbWords(u"'", value.text, u"'");
}

std::u16string term(std::u16string_view column, std::u16string_view behind, localDbTermForm form) {
    return localDbWords(u"(", column, behind, form == localDbTermForm::byField ? u")" : u") ");
}

// Under a collation of its own an index does not serve "is not null"; it does serve "at or after
// the first value there can be".
std::u16string notNull(const localDbKeyColumn& column, localDbTermForm form) {
    if (!column.collationSaid) {
        return term(column.name, u" is not null", form);
    }
    const bool isText = column.affinity == Affinity::text;
    return term(column.term(), isText ? u">=''" : localDbWords(u">=-", localDbSqlite::infinityWord),
                form);
}

std::u16string isNullTerm(const localDbKeyColumn& column, localDbTermForm form) {
    return term(column.name, u" is null", form);
}

std::u16string comparison(const localDbKeyColumn& column, std::u16string_view operation,
                          const localDbKeyValue& value, localDbTermForm form) {
    return term(column.term(), localDbWords(operation, valueWord(column, value, form)), form);
}

std::u16string equality(const localDbKeyColumn& column, const localDbKeyValue& value,
                        localDbTermForm form) {
    return value.kind == Kind::null ? isNullTerm(column, form)
                                    : comparison(column, u"=", value, form);
}

// The terms that together mean "strictly behind the value": none, one or two. NULL comes before all
// values.
std::vector<std::u16string> strictTerms(const localDbKeyColumn& column,
                                        const localDbKeyValue& value, localDbDirection direction,
                                        localDbTermForm form) {
    const bool isNull = value.kind == Kind::null;
    if (localDbGoesUp(column, direction)) {
        return {isNull ? notNull(column, form) : comparison(column, u">", value, form)};
    }
    if (isNull) {
        return {};
    }
    std::vector<std::u16string> terms{comparison(column, u"<", value, form)};
    if (column.nullable) {
        terms.push_back(isNullTerm(column, form));
    }
    return terms;
}

}  // namespace

bool localDbGoesUp(const localDbKeyColumn& column, localDbDirection direction) {
    return column.descending == (direction == localDbDirection::backward);
}

std::vector<std::u16string> localDbPassConditions(std::span<const localDbKeyColumn> columns,
                                                  const localDbKey& key, std::size_t fixed,
                                                  localDbDirection direction,
                                                  localDbTermForm form) {
    const std::size_t given = std::min(columns.size(), key.size());
    std::vector<std::u16string> equalities;
    for (std::size_t i = 0; i < given; ++i) {
        equalities.push_back(equality(columns[i], key[i], form));
    }
    std::vector<std::u16string> conditions;
    for (std::size_t equal = given + 1; equal > fixed;) {
        --equal;
        const std::u16string prefix = localDbJoined(std::span(equalities).first(equal), u" and ");
        if (equal == given) {
            conditions.push_back(prefix);
            continue;
        }
        for (const std::u16string& strict :
             strictTerms(columns[equal], key[equal], direction, form)) {
            conditions.push_back(prefix.empty() ? strict : localDbWords(prefix, u" and ", strict));
        }
    }
    return conditions;
}
