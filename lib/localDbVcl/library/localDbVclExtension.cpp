#include "localDbVcl/localDbVclExtension.h"

#include "directory/localRefBrowseSamples.h"
#include "localDb/localDb.h"
#include "localDb/script/localDataBase.h"
#include "localDbVcl/browse/newLocalDbtBrowseWidget200123.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "manager/localDbTreeShow.h"

namespace {

// True whatever became of the window: a list that lacks a key opens none. Meant.
bool testBrowse(localCall& call) {
    auto& base = *static_cast<localDataBase*>(call.object);
    newLocalDbtBrowseWidget200123(*localValueList::of(*call.args[0]), [&] {
        base.open();
        return base.here().name();
    });
    return call.giveBoolean(true);
}

// There are samples 1 to 4.
bool test(localCall& call) {
    const double number = call.number(0);
    const bool isSample = number >= 1 && number < 5;
    if (isSample) {
        localVclOnWindowThread([&] {
            if (localDb::testDbInit(localDb::applicationGetDataFullFileName())) {
                test10(static_cast<int>(number));
            }
        });
    }
    return call.giveBoolean(isSample);
}

constexpr localExtensionMethod methods[] = {
    {u"DATABASE", u"__TEST__BROWSE", testBrowse}, {u"DATABASE", u"__TEST", test},
    {u"DATABASETABLE", u"__TEST", test},          {u"DATABASERECORD", u"__TEST", test},
    {u"DATABASE", u"TREESHOW", localDbTreeShow},
};

}  // namespace

constexpr localExtension localDbVclExtension = {.name = u"localDbVcl", .methods = methods};
