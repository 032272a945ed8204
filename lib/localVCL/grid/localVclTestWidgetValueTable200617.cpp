#include "localVCL/grid/localVclTestWidgetValueTable200617.h"

#include <QContextMenuEvent>
#include <QMouseEvent>

#include "grid/localVclValueTableRows.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr int widthOfTableColumn = 100;

}  // namespace

localVclTestWidgetValueTable200617::localVclTestWidgetValueTable200617(
    const localValueDescription& table, localContextUTF8* context, QWidget* parent)
    : localVclTestWidgetValueTable200617(std::make_unique<localVclValueTableRows>(table), context,
                                         parent) {}

localVclTestWidgetValueTable200617::localVclTestWidgetValueTable200617(
    std::unique_ptr<localVclValueTableRows> rows, localContextUTF8* context, QWidget* parent)
    : localVclGrid200123(context, std::move(rows), parent),
      tableRows_(static_cast<localVclValueTableRows*>(this->rows())) {}

const std::u16string& localVclTestWidgetValueTable200617::variableName() const {
    return tableRows_->variableName();
}

std::int64_t localVclTestWidgetValueTable200617::dataSousceId() const {
    const RowNumber row = rowNumber(currentRow());
    return row >= 0 && row < tableRows_->count() ? row + 1 : 0;
}

void localVclTestWidgetValueTable200617::setCurrentCell(unsigned row, unsigned column) {
    localVclGrid200123::setCurrentCell(row, column);
    if (const localTurn::Attempt turn; turn && !isCollecting()) {
        tableRows_->enter(rowNumber(row));
        tableRows_->leave(nullptr);
    }
    emit dataSousceIdChanged();
}

QString localVclTestWidgetValueTable200617::rowText(RowNumber row, int column) {
    if (column < 0) {
        return tableRows_->headText();
    }
    const localVclGridColumn& shown = this->column(static_cast<std::size_t>(column));
    if (!shown.id.empty()) {
        const localVariableEntry* const variable = context()->varFind(shown.id);
        return variable == nullptr ? QStringLiteral("unknown var!")
                                   : localVclQString(variable->value->toString());
    }
    if (!shown.formula.empty()) {
        int status = localErrorTypeOK;
        const auto text = evaluatedText(status, column, shown.formula + u";");
        return text ? *text : localVclQString(statusMessage(status));
    }
    // Ten times the column. Meant.
    constexpr RowNumber factor = 10;
    return placeText((column + RowNumber{fixedCols}) * factor, row + headRows);
}

void localVclTestWidgetValueTable200617::mousePressEvent(QMouseEvent* event) {
    const QString id = QString::number(dataSousceId());
    if (event->button() == Qt::RightButton) {
        openLayoutDialog();
    } else {
        localVclGrid200123::mousePressEvent(event);
    }
    // Last, since a line lets events through and the window may close.
    traceLine({u"this->dataSousceId=[ ", localVclText(id), u"] "}, "mousePressEvent");
}

// The right button opens the layout; the list of keys comes by the keyboard alone.
void localVclTestWidgetValueTable200617::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse) {
        localVclGrid200123::contextMenuEvent(event);
    }
}

// --- The layout

localValueDescription localVclTestWidgetValueTable200617::layoutAsValueListGet() {
    localValueDescription layout = localVclGrid200123::layoutAsValueListGet();
    if (!variableName().empty()) {
        auto* const source = new localValueList;
        localValueList& grid = *localValueList::of(localValueList::of(layout)->valueAt(1));
        grid.valueAppend(source, u"dataSource");
        source->valueAppend(localText(variableName()), u"varName");
    }
    return layout;
}

void localVclTestWidgetValueTable200617::layoutApply(const localValueList& grid) {
    localVclGrid200123::layoutApply(grid);
    const localValueDescription* const source = grid.valueByPresentation(u"dataSource");
    if (const localValueList* const list =
            source == nullptr ? nullptr : localValueList::of(*source)) {
        const localValueDescription* const name = list->valueByPresentation(u"varName");
        if (name != nullptr && !name->toString().empty()) {
            tableOfVariable(name->toString().string());
        }
    }
    if (columnsCount() == 0) {
        columnsOfTable();
    }
}

// A variable that holds no table gets a new one, in the scope that the grid hangs on.
void localVclTestWidgetValueTable200617::tableOfVariable(const std::u16string& name) {
    tableRows_->setVariable(name, [this] { return context(); });
    if (tableRows_->table() != nullptr) {
        return;
    }
    localContextUTF8& above = *context()->parent();
    localContextUTF8* holder = nullptr;
    localVariableEntry* variable = above.varFind(name, &holder);
    if (variable == nullptr || holder != &above) {
        variable = &above.varDeclare(name);
    }
    auto* const table = new localValueTable;
    variable->value->reset();
    variable->value->objectBind(table, localValueTable::classDeclaration());
    table->columnAdd(u"Колонка1");
}

void localVclTestWidgetValueTable200617::columnsOfTable() {
    for (const std::u16string& name : tableRows_->columnNames()) {
        auto column = std::make_unique<localVclGridColumn>();
        column->id = name;
        column->caption = localVclQString(name);
        column->width = widthOfTableColumn;
        addColumn(std::move(column));
    }
}
