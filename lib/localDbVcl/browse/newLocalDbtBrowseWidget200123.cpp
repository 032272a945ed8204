#include "localDbVcl/browse/newLocalDbtBrowseWidget200123.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>

#include "browse/localDbtBrowseConfiguration.h"
#include "browse/localDbtBrowseWindow.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localVCL/window/localVclOnWindowThread.h"

namespace {

// What became of a window in which a person chooses.
struct Choice {
    QPointer<localDbtBrowseWidget200123> browse;
    qint64 id = 0;
};

void waitFor(const Choice& choice) {
    if (choice.browse != nullptr) {
        QEventLoop loop;
        QObject::connect(choice.browse, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

}  // namespace

void newLocalDbtBrowseWidget200123(localValueList& list,
                                   const std::function<std::u16string()>& connection) {
    std::optional<localDbtBrowseConfiguration> read = localDbtBrowseConfiguration::of(list);
    if (!read) {
        return;
    }
    const bool selects = read->purpose == localDbtBrowsePurpose::select;
    Choice choice;
    localVclOnWindowThread([&] {
        std::shared_ptr<localDbDataSource200123> source = localDbDataSource200123::make(
            connection(), std::move(read->aliases), std::move(read->sqlExpressions), {},
            read->defaultIdxName, {});
        if (source == nullptr) {
            return;
        }
        choice.browse = new localDbtBrowseWidget200123(std::move(source), std::move(read->columns),
                                                       read->purpose);
        if (selects) {
            // Behind the call nothing of it is left to write to: the window does not outlive it.
            QObject::connect(choice.browse, &localDbtBrowseWidget200123::idSelectedSignal,
                             choice.browse, [&choice](long long int id) { choice.id = id; });
        }
        localDbtBrowseShow(choice.browse, QStringLiteral("newLocalDbtBrowseWidget200123"), selects);
    });
    if (selects) {
        localVclAskOnWindowThread([&] { waitFor(choice); });
        localValueDescription id;
        id.setVal(static_cast<double>(choice.id));
        list.valueSetByPresentation(id, u"idSelected");
    }
}
