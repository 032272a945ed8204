#include "manager/localDbtRowsModel.h"

#include <QApplication>
#include <QPalette>
#include <QSqlQuery>

#include "localDb/localDb.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr int firstRows = 255;           // what the toolkit's model reads at once
constexpr qsizetype longestShown = 300;  // letters of a cell; painting takes its time for each

bool isNumber(const QVariant& value) {
    return value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int ||
           value.typeId() == QMetaType::Double;
}

}  // namespace

localDbtRowsModel::localDbtRowsModel(std::u16string_view connection, std::u16string_view tableWord,
                                     QObject* parent)
    : QSqlQueryModel(parent),
      connection_(connection),
      sql_(QStringLiteral("select * from ") + localVclQString(tableWord)),
      file_(connection_) {
    read(firstRows);
}

QString localDbtRowsModel::shownText(const QVariant& value, qsizetype longest) {
    if (value.isNull()) {
        return QStringLiteral("NULL");
    }
    if (value.typeId() == QMetaType::QByteArray) {
        return QStringLiteral("[%1 bytes]").arg(value.toByteArray().size());
    }
    const QString dots = QStringLiteral("...");
    const QString text = value.toString();
    return text.size() <= longest ? text : text.left(longest - dots.size()) + dots;
}

QSqlError localDbtRowsModel::error() const {
    return lastError().isValid() ? lastError() : query().lastError();
}

bool localDbtRowsModel::run(const QString& sql) {
    QSqlQuery made(localDbConnection::database(connection_));
    const bool done = localDb::exec(made, sql, localDb::Reading::anywhere);
    setQuery(std::move(made));
    return done;
}

void localDbtRowsModel::read(int most) {
    if (!localDbConnection::isHere(connection_) || !localDbConnection::open(connection_)) {
        return;
    }
    beginResetModel();
    isReading_ = true;
    const bool done = run(sql_ + QLatin1Char(';'));
    isWhole_ = !done || !QSqlQueryModel::canFetchMore();
    if (!isWhole_ && run(sql_ + QStringLiteral(" limit %1;").arg(most))) {
        while (QSqlQueryModel::canFetchMore()) {
            QSqlQueryModel::fetchMore();
        }
        isWhole_ = rowCount() < most;
    }
    endResetModel();
    // Views that find their place again behind the reset do not read on by that.
    isReading_ = false;
}

void localDbtRowsModel::readAgain() {
    read(qMax(firstRows, rowCount()));
}

bool localDbtRowsModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && !isReading_ && !isWhole_ && file_.stands();
}

void localDbtRowsModel::fetchMore(const QModelIndex& parent) {
    if (isReading_) {
        // The base reads the first rows of a statement by this.
        QSqlQueryModel::fetchMore(parent);
    } else {
        read(rowCount() * 2);
    }
}

QVariant localDbtRowsModel::value(const QModelIndex& index) const {
    return QSqlQueryModel::data(index, Qt::EditRole);
}

QVariant localDbtRowsModel::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return index.isValid() ? shownText(value(index), longestShown) : QVariant();
        case Qt::TextAlignmentRole:
            return isNumber(value(index)) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                          : QVariant();
        case Qt::ForegroundRole: {
            const QVariant held = value(index);
            return held.isNull() || held.typeId() == QMetaType::QByteArray
                       ? QApplication::palette().brush(QPalette::PlaceholderText)
                       : QVariant();
        }
        default:
            return QSqlQueryModel::data(index, role);
    }
}
