#include "localSxl/export/localSxlExportExtension.h"

#include <QByteArray>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localSxl/export/localSxlExport.h"
#include "localSxl/sheet/localSxlSheet.h"
#include "localSxl/sheet/localSxlTable.h"

namespace {

bool exported(localCall& call, const localSxlSheet& sheet) {
    const std::u16string file =
        localPlatform::fileNameFromBytes(qgetenv("KORVO_EXPORT").toStdString());
    std::u16string fault;
    if (!localSxlExport(sheet, file, fault)) {
        writeLine(fault);
        return call.fail(localErrorTypeCODE);
    }
    return true;
}

bool documentShow(localCall& call) {
    return exported(call, *static_cast<const localSxlSheet*>(call.object)) &&
           call.giveBoolean(true);
}

bool tableShow(localCall& call) {
    localSxlSheet sheet(call.context);
    sheet.clear();
    localSxlFillFromTable(sheet, *static_cast<const localValueTable*>(call.object));
    return exported(call, sheet) && call.done();
}

constexpr localExtensionMethod methods[] = {
    {u"TABLEDOCUMENT", u"SHOW", documentShow},
    {u"VALUETABLE", u"SHOW", tableShow},
};

}  // namespace

constexpr localExtension localSxlExportExtension = {.name = u"localSxl export", .methods = methods};
