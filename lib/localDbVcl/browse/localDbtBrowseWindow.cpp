#include "browse/localDbtBrowseWindow.h"

#include <QMdiSubWindow>

#include <algorithm>

#include "localDbVcl/browse/localDbtBrowseWidget200123.h"
#include "localVCL/window/localVclWindow.h"

namespace {

// Rows and pixels of a window that opens.
constexpr int rowsAtFirst = 20;
constexpr int narrowest = 320;
constexpr int widest = 1000;

}  // namespace

void localDbtBrowseShow(localDbtBrowseWidget200123* browse, const QString& title, bool modal) {
    const QRect lastColumn =
        browse->cellRectangle(0, static_cast<unsigned>(browse->columnsCount()));
    const QRect lastRow = browse->cellRectangle(rowsAtFirst - 1, 0);
    browse->resize(
        std::clamp(lastColumn.right() + browse->cellRectangle(0, 0).width(), narrowest, widest),
        lastRow.bottom());
    localVclWindowParameters parameters;
    parameters.title = title;
    parameters.modal = modal;
    QWidget* const window = localVclWindowShow(browse, parameters);
    if (qobject_cast<QMdiSubWindow*>(window) == nullptr) {
        window->setMaximumHeight(browse->maximumHeight() + window->height() - browse->height());
    }
}
