#include "localDbVcl/browse/localDbtBrowseWidget200123.h"

#include <QPointer>
#include <QResizeEvent>

#include <cstdio>
#include <cstdlib>

#include "browse/localDbtBrowsePosition.h"
#include "browse/localDbtBrowseRows.h"
#include "localDb/localDb.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr unsigned mostRows = localDbDataSource200123::bufferSize / 2;

// A window that has no size yet: the head and a row.
constexpr std::uint32_t fewestRows = 2;

// Indexes of the sample tables, for browses that name no columns.
struct SampleIndex {
    std::u16string_view expression;
    std::u16string_view index;
};
constexpr SampleIndex sampleIndexes[] = {{u"tov.descr", u"Ref03_DESCR"},
                                         {u"tov.code", u"Ref03_CODE"},
                                         {u"tov.id", u"Ref03_ID"},
                                         {u"priceEl.code", u"Ref01_CODE"}};

constexpr std::u16string_view wideExpression = u"tov.descr";
constexpr int wideColumn = 250;

// Any name may be a column's: between quotes it is no word of SQL.
std::u16string quoted(const std::u16string& name) {
    return u'"' + localVclQString(name).replace(u'"', QLatin1String("\"\"")).toStdU16String() +
           u'"';
}

std::shared_ptr<localDbDataSource200123> sourceOfTable(std::u16string_view connection,
                                                       std::u16string_view table) {
    const std::u16string alias = u"t";
    std::vector<localDbDataSource200123::SqlExpression> expressions;
    for (const localDbFieldDescription& field :
         localDb::dbtFieldsDescriptionsGet(connection, table)) {
        const std::u16string& name = field.getName();
        const bool isId = name == localDbFieldDescription::PrimaryKeyName;
        expressions.push_back({.sqlExpression = alias + u"." + (isId ? name : quoted(name)),
                               .aliasName = quoted(name)});
    }
    return std::make_shared<localDbDataSource200123>(
        connection,
        std::vector<localDbDataSource200123::Alias>{
            {.aliasName = alias, .dbtName = std::u16string(table)}},
        std::move(expressions), std::vector<std::u16string>(), u"", std::vector<std::u16string>());
}

// What an expression is called in the query.
QString captionOf(const localDbDataSource200123::SqlExpression& expression) {
    QString name = localVclQString(expression.aliasName);
    if (name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"')) {
        name = name.sliced(1, name.size() - 2).replace(QLatin1String("\"\""), QLatin1String("\""));
    }
    return name;
}

}  // namespace

localDbtBrowseWidget200123::View
localDbtBrowseWidget200123::viewOf(std::shared_ptr<DataSource> source) {
    auto position = std::make_shared<localDbtBrowsePosition>(*source, fewestRows);
    auto rows = std::make_unique<localDbtBrowseRows>(source);
    return {std::move(source), std::move(position), std::move(rows)};
}

localDbtBrowseWidget200123::localDbtBrowseWidget200123(std::shared_ptr<DataSource> dataSource,
                                                       Columns given, localDbtBrowsePurpose purpose,
                                                       localContextUTF8* context)
    : localDbtBrowseWidget200123(viewOf(std::move(dataSource)), std::move(given), purpose,
                                 context) {
    localDbtBrowseWidget200123::indexesFind();
}

localDbtBrowseWidget200123::localDbtBrowseWidget200123(std::u16string_view connection,
                                                       std::u16string_view table,
                                                       localDbtBrowsePurpose purpose)
    : localDbtBrowseWidget200123(sourceOfTable(connection, table), {}, purpose) {}

localDbtBrowseWidget200123::localDbtBrowseWidget200123(View view, Columns given,
                                                       localDbtBrowsePurpose purpose,
                                                       localContextUTF8* context)
    : localVclGrid200123(context, std::move(view.rows)),
      dataSource_(std::move(view.source)),
      connection_(std::make_unique<localDbConnection>(dataSource_->connection())),
      position_(std::move(view.position)) {
    selectMode = purpose == localDbtBrowsePurpose::select;
    traceLine(
        {u" dataBufer->size()= ", localVclText(QString::number(dataSource_->dataBuffer().size()))},
        "localDbtBrowseWidget200123");
    if (given.empty()) {
        given = columnsOfExpressions(*dataSource_);
    }
    for (auto& column : given) {
        addColumn(std::move(column));
    }
    headRows = position_->headRows;
    setCurrentCell(position_->mCurRow, fixedCols);
    limitHeight();
}

localDbtBrowseWidget200123::~localDbtBrowseWidget200123() = default;

localDbtBrowseWidget200123::Columns
localDbtBrowseWidget200123::columnsOfExpressions(const DataSource& source) {
    Columns made;
    for (const DataSource::SqlExpression& one : source.sqlExpressions()) {
        auto column = std::make_unique<localDbtBrowseColumn>();
        column->caption = captionOf(one);
        column->dataBuferColumn = static_cast<int>(made.size());
        if (one.sqlExpression == wideExpression) {
            column->width = wideColumn;
        }
        for (const auto& [expression, index] : sampleIndexes) {
            if (one.sqlExpression == expression) {
                column->idxName = index;
            }
        }
        made.push_back(std::move(column));
    }
    return made;
}

void localDbtBrowseWidget200123::indexesFind() {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        localDbtBrowseColumn& column = browseColumn(i);
        column.idx = dataSource_->indexByName(column.idxName);
        column.idxP = dataSource_->indexByName(column.idxPName);
    }
}

// --- The position

std::uint32_t localDbtBrowseWidget200123::mRec1() const {
    return position_->mRec1;
}

std::uint32_t localDbtBrowseWidget200123::mCurRec() const {
    position_->mCurRow = mCurRow;
    return position_->mCurRec();
}

localVclGrid200123::RowNumber localDbtBrowseWidget200123::rowNumber(unsigned row) const {
    const RowNumber behindHead = RowNumber{row} - headRows;
    return row < headRows ? behindHead : behindHead + position_->mRec1;
}

void localDbtBrowseWidget200123::move(const std::function<void()>& act) {
    // The box of a failed statement lets events in.
    if (isMoving_) {
        return;
    }
    const QPointer<localDbtBrowseWidget200123> self(this);
    const auto position = position_;
    const auto source = dataSource_;
    const std::uint32_t rows = visibleRows();
    const std::uint32_t top = position->mRec1;
    const unsigned fills = source->fillCount();
    position->mCurRow = mCurRow;
    position->visibleRows = rows;
    isMoving_ = true;
    act();
    if (self == nullptr) {
        return;
    }
    isMoving_ = false;
    const bool refilled = source->fillCount() != fills;
    if (refilled) {
        clearBlock();
    }
    const bool changed = refilled || top != position->mRec1 || headRows != position->headRows;
    headRows = position->headRows;
    if (mCurRow != position->mCurRow) {
        setCurrentCell(position->mCurRow, mCurCol);
    }
    if (changed) {
        refresh();
    }
    if (visibleRows() != rows) {
        move([this] { position_->resize(visibleRows()); });
    }
}

void localDbtBrowseWidget200123::moveByKey(const std::function<void()>& act) {
    if (!searchText.isEmpty()) {
        setSearchText({});
    }
    move(act);
}

void localDbtBrowseWidget200123::scrollRowDown() {
    scrollRows(1);
}

void localDbtBrowseWidget200123::scrollRowUp() {
    scrollRows(-1);
}

void localDbtBrowseWidget200123::scrollRows(int rows) {
    move([position = position_, rows] {
        for (int i = 0; i < std::abs(rows); ++i) {
            rows > 0 ? position->scrollDown() : position->scrollUp();
        }
    });
}

void localDbtBrowseWidget200123::goToStart() {
    move([position = position_] { position->toStart(); });
}

void localDbtBrowseWidget200123::goToEnd() {
    move([position = position_] { position->toEnd(); });
}

void localDbtBrowseWidget200123::idxSet(std::u16string_view name) {
    move([position = position_, name = std::u16string(name)] { position->idxSet(name); });
}

const localDbtBrowseColumn* localDbtBrowseWidget200123::searchColumn(const QString& text) const {
    traceLine({u"tmpWordForFind=[", localVclText(text), u"] "}, "findFast");
    const std::size_t number = mCurCol - fixedCols + firstCol;
    return mCurCol < fixedCols || number >= columns.size() ? nullptr : &browseColumn(number);
}

bool localDbtBrowseWidget200123::findFast(const QString& text) {
    const localDbtBrowseColumn* const column = searchColumn(text);
    if (column == nullptr || column->idx == nullptr) {
        return false;
    }
    bool found = false;
    move([&found, position = position_, index = column->idx, &text] {
        found = position->find(*index, {localVclText(text)});
    });
    return found;
}

std::u16string localDbtBrowseWidget200123::idxNameOfColumn(std::size_t column) const {
    return column < columns.size() ? browseColumn(column).idxName : std::u16string();
}

qint64 localDbtBrowseWidget200123::getId() const {
    const std::u16string alias = dataSource_->aliases().empty()
                                     ? std::u16string()
                                     : dataSource_->aliases().front().aliasName;
    return dataSource_->cell(mCurRec(), dataSource_->expressionNumber(alias + u".id")).toLongLong();
}

// --- Sizes

void localDbtBrowseWidget200123::limitHeight() {
    setMaximumHeight(static_cast<int>(mostRows + 1) * rowStep() - 2);
}

void localDbtBrowseWidget200123::keepCursorInSight() {
    unsigned column = mCurCol;
    while (column > fixedCols && cellRectangle(mCurRow, column).right() >= width() - cellMargin) {
        --column;
    }
    if (column != mCurCol) {
        setCurrentCell(mCurRow, column);
    }
}

void localDbtBrowseWidget200123::resizeEvent(QResizeEvent*) {
    if (2 * visibleRows() > localDbDataSource200123::bufferSize) {
        localHost::current().report({.kind = localReport::Kind::critical,
                                     .title = u"resizeEvent",
                                     .text = u"Grid too big for buffer size! "});
        // Nothing is torn down: other threads may be at work.
        std::fflush(nullptr);
        std::_Exit(1);
    }
    keepCursorInSight();
    reposition();
    refresh();
    move([this] { position_->resize(visibleRows()); });
}

void localDbtBrowseWidget200123::changeEvent(QEvent* event) {
    localVclGrid200123::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        limitHeight();
    }
}

// --- Layout

localValueDescription localDbtBrowseWidget200123::layoutAsValueListGet() {
    localValueDescription layout = localVclGrid200123::layoutAsValueListGet();
    const localValueDescription* const grid =
        localValueList::of(layout)->valueByPresentation(u"grid");
    localValueList* const described =
        localValueList::of(*localValueList::of(*grid)->valueByPresentation(u"columns"));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const localDbtBrowseColumn& column = browseColumn(i);
        localValueList* const one = localValueList::of(described->valueAt(i + 1));
        one->valueAppend(static_cast<double>(column.dataBuferColumn), u"dataBuferColumn");
        one->valueAppend(localText(column.idxName), u"idxName");
        one->valueAppend(localText(column.idxPName), u"idxPName");
    }
    return layout;
}

void localDbtBrowseWidget200123::layoutApply(const localValueList& grid) {
    const unsigned row = mCurRow;
    localVclGrid200123::layoutApply(grid);
    const localValueDescription* const described = grid.valueByPresentation(u"columns");
    const localValueList* const list =
        described == nullptr ? nullptr : localValueList::of(*described);
    std::size_t number = 0;
    for (std::size_t i = 0; list != nullptr && i < list->size() && number < columns.size(); ++i) {
        const localValueList* const one = localValueList::of(list->items()[i].value);
        if (one == nullptr) {
            continue;
        }
        auto column = std::make_unique<localDbtBrowseColumn>();
        static_cast<localVclGridColumn&>(*column) = *columns[number];
        const auto value = [&](std::u16string_view key) {
            const localValueDescription* const found = one->valueByPresentation(key);
            return found == nullptr ? localValueDescription() : *found;
        };
        column->dataBuferColumn =
            static_cast<int>(localIndex(value(u"dataBuferColumn").toNumber()));
        column->idxName = value(u"idxName").toString().string();
        column->idxPName = value(u"idxPName").toString().string();
        columns[number++] = std::move(column);
    }
    indexesFind();
    setCurrentCell(row, fixedCols);
}
