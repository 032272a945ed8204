#include "localSxlVcl/library/localSxlVclExtension.h"

#include <QScrollArea>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localSxl/sheet/localSxlSheet.h"
#include "localSxl/sheet/localSxlTable.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclWindow.h"

namespace {

void sheetShow(const localValueDescription& sheet, const localVclWindowParameters& parameters) {
    localVclOnWindowThread([&] {
        auto* const widget = new localSxl(sheet);
        widget->resize(widget->sizeHint());
        localVclWindowShow(widget, parameters);
        // The sheet scrolls by itself, and takes all the room that its window has.
        for (QWidget* around = widget->parentWidget(); around != nullptr;
             around = around->parentWidget()) {
            if (auto* const area = qobject_cast<QScrollArea*>(around)) {
                area->setWidgetResizable(true);
            }
        }
    });
}

QString textOr(const localCall& call, std::size_t argument) {
    return argument < call.args.size() ? localVclQString(call.text(argument)) : QString();
}

// The third argument changes nothing. Meant.
bool documentShow(localCall& call) {
    localValueDescription sheet;
    sheet.objectBind(call.object, localSxlSheet::classDeclaration());
    localVclWindowParameters parameters;
    parameters.iconAsBase64 = textOr(call, 1);
    parameters.title = textOr(call, 0) + QStringLiteral(" [") + textOr(call, 1) + QLatin1Char(']');
    sheetShow(sheet, parameters);
    return call.giveBoolean(true);
}

bool tableShow(localCall& call) {
    const auto& table = *static_cast<const localValueTable*>(call.object);
    localValueDescription sheet;
    auto* const made = new localSxlSheet(call.context);
    sheet.objectBind(made, localSxlSheet::classDeclaration());
    made->clear();
    localSxlFillFromTable(*made, table);
    localVclWindowParameters parameters;
    parameters.title = localVclQString(table.toStringTable());
    sheetShow(sheet, parameters);
    return call.done();
}

constexpr localExtensionMethod methods[] = {
    {u"TABLEDOCUMENT", u"SHOW", documentShow},
    {u"VALUETABLE", u"SHOW", tableShow},
};

}  // namespace

constexpr localExtension localSxlVclExtension = {.name = u"localSxlVcl", .methods = methods};
