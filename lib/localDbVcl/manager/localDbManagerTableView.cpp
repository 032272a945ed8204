#include "localDbVcl/manager/localDbManagerTableView.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include "localDb/localDb.h"
#include "localDbVcl/manager/localDbManager.h"
#include "localDbVcl/manager/localDbtQTableView.h"
#include "manager/localDbManagerLook.h"

localDbManagerTableView::localDbManagerTableView(localDbManagerTableModel* model, QWidget* parent)
    : QTableView(parent), model_(model), file_(model->connection()) {
    model->setParent(this);
    setModel(model);
    localDbManagerLook(*this);
    columnsFit();
    setCurrentIndex(model->index(0, localDbManagerTableModel::objName));
    connect(this, &QTableView::activated, this, &localDbManagerTableView::objectOpen);
}

void localDbManagerTableView::columnsFit() {
    localDbManagerColumnsFit(*this);
    // Numbers come later.
    const int digits = fontMetrics().horizontalAdvance(QStringLiteral("100000000"));
    using Model = localDbManagerTableModel;
    setColumnWidth(Model::rowCountColumn, qMax(columnWidth(Model::rowCountColumn), digits));
    // The last one takes what is left of the window.
    setColumnWidth(Model::tabComment, digits);
}

bool localDbManagerTableView::isReady() const {
    return currentIndex().isValid() && file_.check();
}

const localDbObject& localDbManagerTableView::current() const {
    return model_->object(currentIndex().row());
}

void localDbManagerTableView::objectOpen() {
    if (isReady() && current().type == u"table") {
        dbTableBrowseShow(model_->connection(), current().name);
    }
}

void localDbManagerTableView::structureModify() {
    if (!isReady()) {
        return;
    }
    // A copy: the list is read anew behind it, for what the rebuild has changed or left behind.
    const localDbObject object = current();
    dbStructureModify(model_->connection(), object);
    model_->read();
    for (int row = 0; row < model_->rowCount(); ++row) {
        if (model_->object(row).name == object.name) {
            setCurrentIndex(model_->index(row, localDbManagerTableModel::objName));
        }
    }
}

void localDbManagerTableView::objectDelete() {
    if (!isReady()) {
        return;
    }
    const int row = currentIndex().row();
    const localDbObject object = current();
    const std::u16string name = localDb::nameWord(object.name);
    const std::u16string& connection = model_->connection();
    if (object.type == u"table" && localDb::dbtDeleteAfterAnswer(connection, name)) {
        model_->objectRemove(row);
        localDbtQTableView::tableChanged(connection, object.name);
    } else if (object.type == u"index" && localDb::idxDeleteAfterAnswer(connection, name)) {
        model_->objectRemove(row);
    }
}

void localDbManagerTableView::rowsCount() {
    if (!file_.check()) {
        return;
    }
    const QModelIndex before = currentIndex();
    model_->countRows();
    const int row = qMin(before.row(), model_->rowCount() - 1);
    setCurrentIndex(model_->index(row, before.column()));
}

void localDbManagerTableView::keyPressEvent(QKeyEvent* event) {
    const bool f4 = event->key() == Qt::Key_F4;
    if (f4 && event->modifiers().testFlag(Qt::ShiftModifier)) {
        structureModify();
    } else if (f4 && !event->modifiers().testFlag(Qt::MetaModifier)) {
        objectOpen();
    } else if (event->key() == Qt::Key_Delete) {
        objectDelete();
    } else if (event->key() == Qt::Key_F5) {
        rowsCount();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void localDbManagerTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool isOne = currentIndex().isValid();
    const std::u16string type = isOne ? current().type : u"";
    localDbManagerMenu(
        *this, *event,
        {{QStringLiteral("Open"), Qt::Key_F4, type == u"table", [this] { objectOpen(); }},
         {QStringLiteral("Structure"), Qt::SHIFT | Qt::Key_F4, isOne,
          [this] { structureModify(); }},
         {QStringLiteral("Delete"), Qt::Key_Delete, type == u"table" || type == u"index",
          [this] { objectDelete(); }},
         {QStringLiteral("Count rows"), Qt::Key_F5, true, [this] { rowsCount(); }}});
}
