#include "directory/localRefBrowsePosition.h"

#include <algorithm>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

void trace(std::u16string_view words, std::u16string_view name = {},
           std::u16string_view behind = {}) {
    traceLine({words, name, behind}, "setHierarchical");
}

void traceStart(const localDbKey& key) {
    for (std::size_t i = 0; i < key.size(); ++i) {
        trace(u"newStartBuferKey[" + QString::number(i).toStdU16String() + u"] = [", key[i].text,
              u"] ");
    }
}

}  // namespace

localRefBrowsePosition::localRefBrowsePosition(localDbDataSource200123& source,
                                               std::uint32_t rowsOnScreen)
    : localDbtBrowsePosition(source, rowsOnScreen),
      colIsFolder(columnNumber(u"isfolder")),
      colParentId(columnNumber(u"parentid")),
      otherIdx(nullptr),
      colId_(columnNumber(u"id")) {
    if (source.aliases().empty()) {
        return;
    }
    const std::u16string& table = source.aliases().front().dbtName;
    otherIdx = source.indexByName(table + u"_PDESCR");
    if (otherIdx != nullptr) {
        traceLine(
            {u"Устанавлен альтернативный индекс для сортировки по умолчанию  [", otherIdx->name},
            "localRefBrowseWidget200123");
    }
    idxSet(table + u"_DESCR");
    toStart();
}

std::size_t localRefBrowsePosition::columnNumber(std::u16string_view column) const {
    const auto& aliases = source().aliases();
    const std::u16string alias = aliases.empty() ? std::u16string() : aliases.front().aliasName;
    return source().expressionNumber(alias + u"." + std::u16string(column));
}

bool localRefBrowsePosition::isHierarchical() const {
    const Index* const index = source().currentIdx();
    return index != nullptr && index->keyFields.size() >= 2 &&
           index->keyFields[0]->name == u"parentid" && index->keyFields[1]->name == u"isfolder" &&
           source().fixedKeyValues().size() == 1;
}

bool localRefBrowsePosition::isFolder(std::size_t bufferRow) const {
    return source().cell(bufferRow, colIsFolder).toInt() == 1;
}

QString localRefBrowsePosition::pinnedCell(std::uint32_t screenRow, std::size_t expression) const {
    const std::size_t fromEnd = headRows - screenRow;
    return screenRow >= headRows || fromEnd > ancestors.size()
               ? QString()
               : source().cellOf(ancestors[ancestors.size() - fromEnd], expression);
}

// --- The regimes

std::vector<localRefBrowsePosition::Row> localRefBrowsePosition::pathTo(qint64 id) const {
    std::vector<Row> path;
    std::vector<qint64> seen;
    // Folders of damaged data may lie in each other.
    while (id > 0 && std::find(seen.begin(), seen.end(), id) == seen.end()) {
        seen.push_back(id);
        Row row = source().getTmpRowById(id);
        id = source().cellOf(row, colParentId).toLongLong();
        if (!row.empty()) {
            path.insert(path.begin(), std::move(row));
        }
    }
    return path;
}

void localRefBrowsePosition::setHierarchical(bool on) {
    if (otherIdx == nullptr) {
        return;
    }
    if (!on) {
        trace(u"------------------------------------------------- It was Hierarchical regim! ");
        source().setFixedKeyValues({});
        if (!hasRow() && !ancestors.empty()) {
            // From an empty folder a person comes to the folder itself.
            const QString id = source().cellOf(ancestors.back(), colId_);
            // Its key in the order there is now; others may have the same.
            const Row folder = source().getTmpRowById(id.toLongLong());
            localDbKey key;
            for (std::size_t i = 0; i + source().sqlExpressions().size() < folder.size(); ++i) {
                key.emplace_back(localVclText(folder[i]));
            }
            source().fillFromKeyVal(key);
            std::uint32_t row = 0;
            while (row + 1 < size() && source().cell(row, colId_) != id) {
                ++row;
            }
            place(row);
        }
    }
    const Index* const before = source().currentIdx();
    idxSet(otherIdx->name);
    otherIdx = before;
    trace(u"N2EW idxName= ", source().currentIdx()->name);
    const std::uint32_t record = mCurRec();
    const localDbKey target = source().exactKeyOfRow(record);
    ancestors.clear();
    if (on) {
        trace(u"It was NOT Hierarchical regim! ");
        const qint64 parent = source().cell(record, colParentId).toLongLong();
        const std::u16string parentText = QString::number(parent).toStdU16String();
        trace(u"will be  parentId=", parentText);
        ancestors = pathTo(parent);
        source().setFixedKeyValues({parentText});
    }
    headRows = static_cast<std::uint32_t>(1 + ancestors.size());
    if (target.empty()) {
        toStart();
        return;
    }
    const localDbKey start = source().relativeKey(target, -halfBuffer, false);
    traceStart(start);
    fillFrom(start, target);
}

// --- Folders

void localRefBrowsePosition::showFolder(std::u16string id) {
    headRows = static_cast<std::uint32_t>(1 + ancestors.size());
    source().setFixedKeyValues({std::move(id)});
    const std::uint32_t row = mCurRow;
    toStart();
    toScreenRow(row);
}

bool localRefBrowsePosition::enterFolder() {
    if (!isHierarchical() || !hasRow() || !isFolder(mCurRec()) ||
        colId_ >= source().sqlExpressions().size()) {
        return false;
    }
    const Row folder = source().dataBuffer()[mCurRec()];
    ancestors.push_back(folder);
    mCurRow = headRows + 1;
    showFolder(source().cellOf(folder, colId_).toStdU16String());
    return true;
}

bool localRefBrowsePosition::leaveFolder() {
    if (!isHierarchical() || ancestors.empty()) {
        return false;
    }
    // The first cell is that of the key's first column, the folder around.
    const std::u16string around = ancestors.back().front().toStdU16String();
    ancestors.pop_back();
    mCurRow -= mCurRow > 0 ? 1 : 0;
    showFolder(around);
    return true;
}

bool localRefBrowsePosition::findInFolder(const Index& index, std::u16string_view text) {
    for (const char16_t* const part : {u"0", u"1"}) {
        localDbKey key;
        key.emplace_back(source().fixedKeyValues()[0]);
        key.emplace_back(part);
        key.emplace_back(text);
        if (find(index, key, 2)) {
            return true;
        }
    }
    return false;
}
