#include "localDbVcl/manager/localDbManagerTableModel.h"

#include <QApplication>
#include <QPalette>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/text/localVclText.h"
#include "manager/localDbWaitCursor.h"

namespace {

constexpr const char* headers[] = {"objType", "objName", "rowCount", "tabComment"};

}  // namespace

localDbManagerTableModel::localDbManagerTableModel(std::u16string connection, QObject* parent)
    : QAbstractTableModel(parent), connection_(std::move(connection)) {
    if (!localDbConnection::exists(connection_)) {
        localHost::current().report({.kind = localReport::Kind::warning,
                                     .title = u"localDbManagerTableModel::localDbManagerTableModel",
                                     .text = u"DB [" + connection_ + u"] not found!"});
        return;
    }
    read();
}

bool localDbManagerTableModel::read() {
    std::vector<localDbObject> objects;
    isRead_ = localDb::dbObjectsGet(connection_, objects);
    if (!isRead_) {
        return false;
    }
    beginResetModel();
    rows_.clear();
    for (localDbObject& object : objects) {
        rows_.push_back({.object = std::move(object), .rowCount = {}});
    }
    endResetModel();
    return true;
}

void localDbManagerTableModel::countRows() {
    if (!read()) {
        return;
    }
    const localDbWaitCursor wait;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        Row& row = rows_[i];
        if (row.object.type == u"table") {
            const std::u16string name = localDb::nameWord(row.object.name);
            row.rowCount = QString::number(
                localDb::dbtRecordCount(localVclQString(connection_), localVclQString(name)));
            const QModelIndex cell = index(static_cast<int>(i), rowCountColumn);
            emit dataChanged(cell, cell);
        }
    }
}

void localDbManagerTableModel::objectRemove(int row) {
    const localDbObject gone = object(row);
    for (int i = rowCount() - 1; i >= 0; --i) {
        const bool belongs = gone.type == u"table" && object(i).table == gone.name;
        if (i == row || (belongs && object(i).type != u"view")) {
            beginRemoveRows({}, i, i);
            rows_.erase(rows_.begin() + i);
            endRemoveRows();
        }
    }
}

int localDbManagerTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int localDbManagerTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columnsCount;
}

QString localDbManagerTableModel::text(const Row& row, int column) const {
    switch (column) {
        case objType:
            return localVclQString(row.object.type);
        case objName:
            return localVclQString(row.object.name);
        case rowCountColumn:
            return row.rowCount;
        case tabComment:
            return localVclQString(row.object.sql);
        default:
            return {};
    }
}

QVariant localDbManagerTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole: {
            const QString shown = text(row, column);
            return column < columnsCount
                       ? shown
                       : QStringLiteral("row = %1  col = %2   ")
                                 .arg(QString::number(index.row()), QString::number(column)) +
                             shown;
        }
        case Qt::ToolTipRole:
            return column == rowCountColumn && row.object.type == u"table" && row.rowCount.isEmpty()
                       ? QStringLiteral("F5 counts the rows")
                       : text(row, column);
        case Qt::TextAlignmentRole:
            return column == rowCountColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                            : QVariant();
        case Qt::ForegroundRole:
            return column == tabComment ? QApplication::palette().brush(QPalette::PlaceholderText)
                                        : QVariant();
        default:
            return {};
    }
}

QVariant localDbManagerTableModel::headerData(int section, Qt::Orientation orientation,
                                              int role) const {
    if (orientation == Qt::Horizontal && role == Qt::ToolTipRole && section == rowCountColumn) {
        return QStringLiteral("F5 counts the rows");
    }
    if (role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    return section >= 0 && section < columnsCount ? QVariant(QLatin1String(headers[section]))
                                                  : QVariant();
}
