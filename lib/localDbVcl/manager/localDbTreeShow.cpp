#include "manager/localDbTreeShow.h"

#include "localDb/script/localDataBase.h"
#include "localDbVcl/manager/localDbTree.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "localVCL/window/localVclWindow.h"
#include "manager/localDbManagerLook.h"

namespace {

constexpr QSize treeSize{360, 480};  // pixels

std::vector<localDbTree::Table> tablesOf(localDataBase& base) {
    std::vector<localDbTree::Table> tables;
    const auto names = base.here().tables();
    for (const std::u16string& name : names.value_or(std::vector<std::u16string>())) {
        localDbTree::Table& table = tables.emplace_back();
        table.name = name;
        localValueTable fields;
        base.fieldsToValueTable(name, fields);
        for (std::size_t row = 0; row < fields.rowsCount(); ++row) {
            table.fields.emplace_back(fields.cell(row, 0).wStr);
        }
    }
    return tables;
}

}  // namespace

bool localDbTreeShow(localCall& call) {
    localDataBase& base = *static_cast<localDataBase*>(call.object);
    const std::vector<localDbTree::Table> tables = tablesOf(base);
    localVclOnWindowThread([&] {
        QWidget* const body = localDbManagerBody(new localDbTree(base.name(), tables),
                                                 QStringLiteral("Right opens · Left closes"));
        body->resize(treeSize);
        localVclWindowParameters parameters;
        parameters.title = QStringLiteral("tree");
        localVclWindowShow(body, parameters);
    });
    return call.giveBoolean(true);
}
