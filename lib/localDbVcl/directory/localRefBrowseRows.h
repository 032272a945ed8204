// A directory as rows of a grid: the pinned path, and the buffer behind it.
#pragma once

#include "browse/localDbtBrowseRows.h"
#include "directory/localRefBrowsePosition.h"

struct localRefBrowsePixmaps {
    QPixmap element;
    QPixmap folder;
    QPixmap openFolder;
};

class localRefBrowseRows final : public localDbtBrowseRows {
public:
    localRefBrowseRows(std::shared_ptr<localDbDataSource200123> source,
                       std::shared_ptr<const localRefBrowsePosition> position,
                       localRefBrowsePixmaps pixmaps)
        : localDbtBrowseRows(std::move(source)),
          position_(std::move(position)),
          pixmaps_(std::move(pixmaps)) {}

    bool enter(Number row) override {
        return localDbtBrowseRows::enter(row) || (row < 0 && screenRow() > 0);
    }
    QString text(const localVclGridColumn& column) override {
        return row() < 0 ? position_->pinnedCell(static_cast<std::uint32_t>(screenRow()),
                                                 expressionOf(column))
                         : localDbtBrowseRows::text(column);
    }
    QPixmap pixmap() override {
        if (row() < 0) {
            return pixmaps_.openFolder;
        }
        return position_->isFolder(static_cast<std::size_t>(row())) ? pixmaps_.folder
                                                                    : pixmaps_.element;
    }

private:
    Number screenRow() const { return position_->headRows + row(); }

    std::shared_ptr<const localRefBrowsePosition> position_;
    localRefBrowsePixmaps pixmaps_;
};
