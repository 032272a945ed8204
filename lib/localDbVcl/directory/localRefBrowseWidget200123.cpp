#include "localDbVcl/directory/localRefBrowseWidget200123.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QStyle>

#include "directory/localRefBrowsePosition.h"
#include "directory/localRefBrowseRows.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

// A window that has no size yet: the head and a row.
constexpr std::uint32_t fewestRows = 2;

QPixmap picture(QStyle::StandardPixmap which) {
    constexpr int side = 16;
    return QApplication::style()->standardIcon(which).pixmap(side, side);
}

}  // namespace

localRefBrowseWidget200123::localRefBrowseWidget200123(std::shared_ptr<DataSource> dataSource,
                                                       Columns given, localDbtBrowsePurpose purpose,
                                                       localContextUTF8* context)
    : localDbtBrowseWidget200123(
          [&]() -> View {
              auto position = std::make_shared<localRefBrowsePosition>(*dataSource, fewestRows);
              auto rows = std::make_unique<localRefBrowseRows>(
                  dataSource, position,
                  localRefBrowsePixmaps{.element = picture(QStyle::SP_FileIcon),
                                        .folder = picture(QStyle::SP_DirIcon),
                                        .openFolder = picture(QStyle::SP_DirOpenIcon)});
              return {std::move(dataSource), std::move(position), std::move(rows)};
          }(),
          std::move(given), purpose, context) {
    localRefBrowseWidget200123::indexesFind();
}

localRefBrowseWidget200123::~localRefBrowseWidget200123() = default;

localRefBrowsePosition& localRefBrowseWidget200123::place() const {
    return static_cast<localRefBrowsePosition&>(position());
}

bool localRefBrowseWidget200123::isHierarchical() const {
    return place().isHierarchical();
}

void localRefBrowseWidget200123::setHierarchical(bool on) {
    move([position = std::static_pointer_cast<localRefBrowsePosition>(sharedPosition()), on] {
        position->setHierarchical(on);
    });
}

// The two orders of a column exist together or not at all.
void localRefBrowseWidget200123::indexesFind() {
    localDbtBrowseWidget200123::indexesFind();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        localDbtBrowseColumn& column = browseColumn(i);
        if ((column.idx == nullptr) != (column.idxP == nullptr)) {
            traceLine({u"Непарные индексы для колонки ", localVclText(column.caption)},
                      "localRefBrowseWidget200123");
            column.idx = nullptr;
            column.idxP = nullptr;
            column.idxName.clear();
            column.idxPName.clear();
            traceLine(u" Очищены!!!", "localRefBrowseWidget200123");
        }
    }
}

std::u16string localRefBrowseWidget200123::idxNameOfColumn(std::size_t column) const {
    return isHierarchical() && column < columns.size()
               ? browseColumn(column).idxPName
               : localDbtBrowseWidget200123::idxNameOfColumn(column);
}

bool localRefBrowseWidget200123::findFast(const QString& text) {
    if (!isHierarchical()) {
        return localDbtBrowseWidget200123::findFast(text);
    }
    const localDbtBrowseColumn* const column = searchColumn(text);
    if (column == nullptr || column->idxP == nullptr) {
        return false;
    }
    bool found = false;
    move([&found, position = std::static_pointer_cast<localRefBrowsePosition>(sharedPosition()),
          index = column->idxP,
          &text] { found = position->findInFolder(*index, localVclText(text)); });
    return found;
}

bool localRefBrowseWidget200123::browseKey(const QKeyEvent& event) {
    if (event.modifiers() != Qt::ControlModifier) {
        return localDbtBrowseWidget200123::browseKey(event);
    }
    const QPointer<localRefBrowseWidget200123> self(this);
    const auto position = std::static_pointer_cast<localRefBrowsePosition>(sharedPosition());
    bool acted = false;
    switch (event.key()) {
        case Qt::Key_H:
            moveByKey([&] { position->setHierarchical(!position->isHierarchical()); });
            return true;
        case Qt::Key_Down:
            moveByKey([&] { acted = position->enterFolder(); });
            break;
        case Qt::Key_Up:
            moveByKey([&] { acted = position->leaveFolder(); });
            break;
        default:
            break;
    }
    return self == nullptr || acted || localDbtBrowseWidget200123::browseKey(event);
}

QList<localVclGrid200123::Key> localRefBrowseWidget200123::keys() const {
    QList<Key> all = localDbtBrowseWidget200123::keys();
    all.append({isHierarchical() ? tr("Show all folders as one") : tr("Show by folders"),
                Qt::CTRL | Qt::Key_H});
    if (isHierarchical()) {
        all.append({tr("Enter the folder"), Qt::CTRL | Qt::Key_Down});
        all.append({tr("Leave the folder"), Qt::CTRL | Qt::Key_Up});
    }
    return all;
}
