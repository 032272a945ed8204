// The row at a distance from a position in an index.
#pragma once

#include <QVariant>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "index/localDbKeyColumn.h"
#include "localDb/index/localDbKey.h"

struct localDbRelativeRead {
    std::u16string_view connection;
    std::u16string_view from;
    std::u16string columns;  // of the result, as SELECT lists them
    std::span<const localDbKeyColumn> keyColumns;
    std::size_t fixed = 0;
    // More conditions, one in brackets each.
    std::u16string conditions = {};

    // The values of the row found, empty when there is none.
    std::vector<QVariant> at(const localDbKey& key, std::int32_t offset, bool strict) const;
};

// " and (condition)" for each.
std::u16string localDbMoreConditions(const std::vector<std::u16string>& conditions);
// " where " and both, as far as they are not empty.
std::u16string localDbWhere(std::u16string_view condition, std::u16string_view moreConditions);
