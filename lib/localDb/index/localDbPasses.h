// The chain of prefix queries that stands for "the rows at and after a position", and its mirror
// image.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "index/localDbKeyColumn.h"
#include "localDb/index/localDbKey.h"

enum class localDbDirection { forward, backward };
// Two wordings of a term: by field numbers stand bare, by name only a column called "id" does.
enum class localDbTermForm { byField, byName };

// The conditions of the passes, in order: as many first columns equal as the key has values, then
// one fewer and the next one strictly behind, down to `fixed` columns equal. The results follow one
// another in the index's order and are together all rows from the position on. An empty condition
// is no condition. No passes at all when the key does not reach behind the fixed columns.
std::vector<std::u16string> localDbPassConditions(std::span<const localDbKeyColumn> columns,
                                                  const localDbKey& key, std::size_t fixed,
                                                  localDbDirection direction, localDbTermForm form);

// A column and the direction it is walked in, for ORDER BY.
bool localDbGoesUp(const localDbKeyColumn& column, localDbDirection direction);
