// What a program tells of a browse, in a value list:
//
//   aliases         the tables of the query, the main one first; of each a list with "dbtName",
//                   "aliasName", "leftJoinCondition"
//   sqlExpressions  the columns of the buffer; of each a list with "sqlExpression" and, when it is
//                   to have a name, "aliasName"
//   defaultIdxName  the index in force at the start
//   gridColumns     of each a list with "caption", "dataBuferColumn", "description", "width",
//                   "idxName"
//   selectMode      1: a person chooses a record; may be absent
#pragma once

#include <optional>
#include <string>

#include "localDbVcl/browse/localDbtBrowseWidget200123.h"

class localValueList;

struct localDbtBrowseConfiguration {
    std::vector<localDbDataSource200123::Alias> aliases;
    std::vector<localDbDataSource200123::SqlExpression> sqlExpressions;
    std::u16string defaultIdxName;
    localDbtBrowseWidget200123::Columns columns;
    localDbtBrowsePurpose purpose = localDbtBrowsePurpose::look;

    // Nothing where a key is missing or holds what it cannot. Columns that are no list are told of.
    static std::optional<localDbtBrowseConfiguration> of(const localValueList& list);
};
