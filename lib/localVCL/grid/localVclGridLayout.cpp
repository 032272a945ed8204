// The layout of a grid as a value list and as text, and the dialog in which a person changes it.
#include <algorithm>
#include <cmath>

#include "grid/localVclGridLayoutDialog.h"
#include "grid/localVclGridLayoutText.h"
#include "grid/localVclGridScope.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/grid/localVclGrid200123.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr double widthWhenAbsent = 100;
constexpr double widestColumn = 10000;  // pixels

localText textOf(const localValueList& list, std::u16string_view key) {
    const localValueDescription* const value = list.valueByPresentation(key);
    return value == nullptr ? localText() : value->toString();
}

int numberOf(const localValueList& list, std::u16string_view key, double whenAbsent, double most) {
    const localValueDescription* const value = list.valueByPresentation(key);
    const double number = value == nullptr ? whenAbsent : value->toNumber();
    return static_cast<int>(
        std::lround(std::isfinite(number) ? std::clamp(number, 0.0, most) : whenAbsent));
}

const localValueList* listOf(const localValueList& list, std::u16string_view key) {
    const localValueDescription* const value = list.valueByPresentation(key);
    return value == nullptr ? nullptr : localValueList::of(*value);
}

std::unique_ptr<localVclGridColumn> columnFrom(const localValueList& described) {
    auto column = std::make_unique<localVclGridColumn>();
    column->id = textOf(described, u"id").string();
    column->caption = localVclQString(textOf(described, u"caption"));
    column->formula = textOf(described, u"formula").string();
    column->description = localVclQString(textOf(described, u"description"));
    column->width = std::max(1, numberOf(described, u"width", widthWhenAbsent, widestColumn));
    const int all = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
    column->alignment = numberOf(described, u"flags", column->alignment, all) & all;
    return column;
}

}  // namespace

localValueDescription localVclGrid200123::layoutAsValueListGet() {
    auto* const described = new localValueList;
    localValueDescription layout;
    layout.objectBind(new localValueList, localValueList::classDeclaration());
    auto* const grid = new localValueList;
    localValueList::of(layout)->valueAppend(grid, u"grid");
    grid->valueAppend(described, u"columns");
    for (const auto& column : columns) {
        auto* const one = new localValueList;
        described->valueAppend(one);
        one->valueAppend(localText(column->id), u"id");
        one->valueAppend(localText(localVclText(column->caption)), u"caption");
        one->valueAppend(localText(column->formula), u"formula");
        one->valueAppend(localText(localVclText(column->description)), u"description");
        one->valueAppend(static_cast<double>(column->width), u"width");
        one->valueAppend(static_cast<double>(column->alignment), u"flags");
    }
    return layout;
}

bool localVclGrid200123::layoutReconfigureByJson(const localValueDescription& value) {
    localValueDescription layout(value);
    if (layout.type == localValueTypeSTRING) {
        const std::u16string text = layout.wStr.string();
        layout.assign(text.empty() ? layoutAsValueListGet() : localVclGridLayoutRead(text));
    }
    const localValueList* const list = localValueList::of(layout);
    const localValueList* const grid = list == nullptr ? nullptr : listOf(*list, u"grid");
    if (grid == nullptr) {
        return false;
    }
    layoutApply(*grid);
    return true;
}

void localVclGrid200123::layoutApply(const localValueList& grid) {
    clearColumns();
    scopeRenew(scope_->stands() ? scope_->context().parent() : nullptr);
    if (const localValueList* const described = listOf(grid, u"columns")) {
        for (const localValueListItem& item : described->items()) {
            if (const localValueList* const one = localValueList::of(item.value)) {
                addColumn(columnFrom(*one));
            }
        }
    }
    setCurrentCell(0, 0);
    reposition();
    refresh();
}

void localVclGrid200123::openLayoutDialog() {
    layoutWork_.ask([this] {
        const localValueDescription layout = layoutAsValueListGet();
        const QString text = localVclQString(localVclGridLayoutText(*localValueList::of(layout)));
        auto* const dialog = new localVclGridLayoutDialog(
            text, [this](const QString& changed) { return takeLayout(changed); }, this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog, &QDialog::finished, this, [this] {
            reposition();
            refresh();
            setFocus();
        });
        dialog->show();
    });
}

bool localVclGrid200123::takeLayout(const QString& text) {
    bool isTaken = false;
    {
        const localTurn::Hold turn;
        localValueDescription value;
        value.setVal(localText(localVclText(text)));
        isTaken = layoutReconfigureByJson(value);
    }
    if (!isTaken) {
        localHost::current().report(
            {.kind = localReport::Kind::critical, .title = u"Grid Layout", .text = u"Error!"});
    }
    return isTaken;
}
