#include "localDbVcl/manager/localDbtQTableView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSqlRecord>

#include <algorithm>
#include <memory>
#include <utility>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localVCL/text/localVclText.h"
#include "manager/localDbManagerLook.h"
#include "manager/localDbWaitCursor.h"
#include "manager/localDbtRowsModel.h"

namespace {

using Kind = localReport::Kind;

// In pixels.
constexpr QSize smallestView{480, 300};
constexpr QSize largestView{960, 560};

// A longer text is cut, as in the message window.
constexpr int longestValue = 510;

constexpr const char16_t* recordTitle = u"localDbTableView::activatedSlot()";

// A field of the record view.
QString fieldLine(const QString& name, const QVariant& value) {
    return QStringLiteral("fieldName: %1 fieldType: %2 fieldValue: |%3|<BR/>")
        .arg(name.toHtmlEscaped(), localVclQString(localDb::cellOf(localVclText(name), value).type),
             localDbtRowsModel::shownText(value, longestValue).toHtmlEscaped());
}

void tell(Kind kind, std::u16string title, const QString& text,
          localReport::Form form = localReport::Form::plain) {
    localHost::current().report(
        {.kind = kind, .title = std::move(title), .text = text.toStdU16String(), .form = form});
}

}  // namespace

localDbtQTableView::localDbtQTableView(std::u16string_view connection, std::u16string_view table,
                                       QWidget* parent)
    : QTableView(parent),
      connection_(connection),
      table_(table),
      tableWord_(localDb::nameWord(table)),
      rows_(new localDbtRowsModel(connection, tableWord_, this)) {
    localDbManagerLook(*this);
    horizontalHeader()->setStretchLastSection(false);
    setModel(rows_);
    localDbManagerColumnsFit(*this);
    setCurrentIndex(rows_->index(0, 0));
    connect(this, &QTableView::activated, this, &localDbtQTableView::activatedSlot);
    // Reading on means reading anew; the person stays at the row.
    auto place = std::make_shared<std::pair<QModelIndex, QPoint>>();
    connect(rows_, &QAbstractItemModel::modelAboutToBeReset, this, [this, place] {
        *place = {currentIndex(), {horizontalScrollBar()->value(), verticalScrollBar()->value()}};
    });
    connect(rows_, &QAbstractItemModel::modelReset, this, [this, place] {
        const auto& [current, scrolled] = *place;
        const int row = std::min(current.row(), rows_->rowCount() - 1);
        setCurrentIndex(rows_->index(row, std::max(0, current.column())));
        updateGeometries();
        horizontalScrollBar()->setValue(scrolled.x());
        verticalScrollBar()->setValue(scrolled.y());
    });
}

QSize localDbtQTableView::sizeHint() const {
    const QSize wanted(verticalHeader()->sizeHint().width() + horizontalHeader()->length() +
                           verticalScrollBar()->sizeHint().width(),
                       horizontalHeader()->sizeHint().height() + verticalHeader()->length());
    return wanted.expandedTo(smallestView).boundedTo(largestView);
}

void localDbtQTableView::tableChanged(std::u16string_view connection, std::u16string_view table) {
    for (QWidget* const widget : QApplication::allWidgets()) {
        auto* const view = qobject_cast<localDbtQTableView*>(widget);
        if (view == nullptr || view->connection_ != connection || view->table_ != table) {
            continue;
        }
        view->rows_->readAgain();
        if (view->rows_->error().isValid()) {
            localDbManagerClose(*view);
        }
    }
}

void localDbtQTableView::fetchAll() {
    const localDbWaitCursor wait;
    while (rows_->canFetchMore()) {
        rows_->fetchMore();
    }
}

std::optional<std::int64_t> localDbtQTableView::idOf(const QModelIndex& index) const {
    const int named = rows_->record().indexOf(QStringLiteral("id"));
    const QVariant held = rows_->value(index.siblingAtColumn(std::max(0, named)));
    bool isNumber = held.typeId() != QMetaType::Double;
    const std::int64_t id = isNumber ? held.toLongLong(&isNumber) : 0;
    if (!isNumber) {
        tell(Kind::warning, recordTitle,
             QStringLiteral("The record has no number in the column %1.")
                 .arg(rows_->record().fieldName(std::max(0, named))));
        return std::nullopt;
    }
    return id;
}

void localDbtQTableView::missingTell(std::int64_t id) {
    rows_->readAgain();
    // A statement that failed has told of it.
    if (!rows_->error().isValid() && rows_->record().contains(QStringLiteral("id"))) {
        tell(Kind::warning, recordTitle,
             QStringLiteral("The record %1 is not in the table any more.").arg(id));
    }
}

void localDbtQTableView::activatedSlot(const QModelIndex& index) {
    if (!index.isValid() || !rows_->file().check()) {
        return;
    }
    const std::optional<std::int64_t> id = idOf(index);
    if (!id) {
        return;
    }
    QSqlRecord record;
    if (!localDb::dbtRecordGetById(connection_, tableWord_, *id, record)) {
        missingTell(*id);
        return;
    }
    QString text = QStringLiteral("<B>localDbTableView::activatedSlot()</B> <BR/><BR/>");
    for (int i = 0; i < record.count(); ++i) {
        text += fieldLine(record.fieldName(i), record.value(i));
    }
    tell(Kind::information, recordTitle, text, localReport::Form::html);
    // Cells that would not come back as they are stay out of it: looking changes nothing. They are
    // compared now, since the record may have changed while the box was open.
    const std::vector<localDbFieldValue> cells =
        localDb::dbtCellsThatComeBack(connection_, tableWord_, *id, record);
    const bool hasKey = std::any_of(cells.begin(), cells.end(), [](const localDbFieldValue& cell) {
        return cell.name == localDbFieldDescription::PrimaryKeyName;
    });
    if (hasKey && cells.size() > 1) {
        localDb::d1btRecordUpdate(connection_, tableWord_, cells,
                                  localDbFieldDescription::PrimaryKeyName);
    }
}

void localDbtQTableView::recordDelete() {
    if (!currentIndex().isValid() || !rows_->file().check()) {
        return;
    }
    const std::optional<std::int64_t> id = idOf(currentIndex());
    if (id && localDb::dbtRecordDelete(connection_, tableWord_, *id)) {
        tableChanged(connection_, table_);
    }
}

void localDbtQTableView::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    const int key = event->key();
    if (key == Qt::Key_F4 && !(modifiers & (Qt::ShiftModifier | Qt::MetaModifier))) {
        activatedSlot(currentIndex());
    } else if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        tell(Kind::warning, u"localDbTableView::keyPressEvent",
             QStringLiteral("keyPress код F%1").arg(key - Qt::Key_F1 + 1));
    } else if (key == Qt::Key_Delete) {
        recordDelete();
    } else {
        if (modifiers.testFlag(Qt::ControlModifier) &&
            (key == Qt::Key_PageDown || key == Qt::Key_End)) {
            fetchAll();
        }
        QTableView::keyPressEvent(event);
    }
}

void localDbtQTableView::contextMenuEvent(QContextMenuEvent* event) {
    const bool isOne = currentIndex().isValid();
    localDbManagerMenu(
        *this, *event,
        {{QStringLiteral("Show record"), Qt::Key_F4, isOne,
          [this] { activatedSlot(currentIndex()); }},
         {QStringLiteral("Delete record"), Qt::Key_Delete, isOne, [this] { recordDelete(); }},
         {QStringLiteral("Read to the end"), Qt::CTRL | Qt::Key_End, rows_->canFetchMore(), [this] {
              fetchAll();
              setCurrentIndex(rows_->index(rows_->rowCount() - 1, currentIndex().column()));
          }}});
}
