#include "localSxlVcl/sheet/localSxl.h"

#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <limits>
#include <utility>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localSlot.h"
#include "localSxl/paint/localSxlBands.h"
#include "localVCL/dialog/localVclMessage.h"
#include "localVCL/editor/localDialogFindString.h"
#include "localVCL/font/localVclFont.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"
#include "sheet/localSxlLink.h"
#include "sheet/localSxlPainting.h"

namespace {

constexpr int leastZoom = 25;
constexpr int mostZoom = 400;
constexpr int widestColumn = 65535;  // pixels, in the width dialog

// A number moved by some, and kept among those of 32 bits.
std::uint32_t moved(std::uint32_t number, std::int64_t by) {
    constexpr std::int64_t last = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::clamp<std::int64_t>(number + by, 1, last));
}

// The last of those from `first` on that have room as a whole.
std::uint32_t lastWhole(const localSxlBandSizes& sizes, std::uint32_t first, int room) {
    std::uint32_t last = first;
    for (const localSxlBand& band : localSxlBands(sizes, first, room)) {
        if (band.at + band.size <= room) {
            last = band.number;
        }
    }
    return last;
}

}  // namespace

localSxl::localSxl(const localValueDescription& sheet, QWidget* parent)
    : QWidget(parent),
      link_(std::make_unique<localSxlLink>(sheet, this)),
      clearedSeen_(this->sheet().clearedCount()) {
    setFont(localVclFont(1));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

localSxl::~localSxl() {
    link_->cut();
    localVclTurnWork::askOnce(
        [link = std::shared_ptr<localSxlLink>(std::move(link_))]() mutable { link.reset(); });
}

const localSxlSheet& localSxl::sheet() const {
    return *localSxlSheet::of(link_->value);
}

localSxlSheet& localSxl::sheet() {
    return *localSxlSheet::of(link_->value);
}

QString localSxl::cellText(std::uint32_t row, std::uint32_t column) const {
    return localVclQString(sheet().cellText({row, column}));
}

QSize localSxl::sizeHint() const {
    return {720, 480};
}

localSxlPlace localSxl::current() const {
    return {topRow_ + currentRow_ - 1, leftColumn_ + currentColumn_ - 1};
}

void localSxl::currentSet(localSxlPlace place) {
    moveInto(place);
    update();
}

void localSxl::zoomSet(int percent) {
    zoom_ = std::clamp(percent, leastZoom, mostZoom);
    update();
}

void localSxl::clearedFollow() {
    if (clearedSeen_ != sheet().clearedCount()) {
        clearedSeen_ = sheet().clearedCount();
        topRow_ = leftColumn_ = currentRow_ = currentColumn_ = 1;
    }
}

void localSxl::inTurn(std::function<void()> work) {
    work_.ask([self = QPointer<localSxl>(this), work = std::move(work)] {
        self->clearedFollow();
        work();
        if (self) {
            self->update();
        }
    });
}

void localSxl::paintEvent(QPaintEvent*) {
    if (const localTurn::Attempt turn; turn) {
        clearedFollow();
        link_->painted();
        const qreal ratio = devicePixelRatioF();
        if (shown_.size() != size() * ratio) {
            shown_ = QPixmap(size() * ratio);
            shown_.setDevicePixelRatio(ratio);
        }
        QPainter painter(&shown_);
        localSxlPainting(*this, painter).paint();
    } else {
        paintWork_.ask([this] { update(); });
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.drawPixmap(0, 0, shown_);
}

// --- places on the screen

localSxlBandSizes localSxl::rowSizes() const {
    return localSxlRowSizes(sheet());
}

localSxlBandSizes localSxl::columnSizes() const {
    return localSxlColumnSizes(sheet());
}

int localSxl::headerHeight() const {
    return std::max(fontMetrics().height() + 4, localSxlCellFormat().height);
}

int localSxl::headerWidth() const {
    const auto rows = localSxlBands(rowSizes(), topRow_, height() * 100 / zoom_);
    const QString last = QString::number(rows.empty() ? topRow_ : rows.back().number);
    return std::max(headerWidth_, fontMetrics().horizontalAdvance(last) + 8);
}

QSize localSxl::room() const {
    return {std::max(0, width() * 100 / zoom_ - headerWidth()),
            std::max(0, height() * 100 / zoom_ - headerHeight())};
}

// --- moving

void localSxl::moveInto(localSxlPlace place) {
    const QSize room = this->room();
    topRow_ = std::min(
        place.row, std::max(topRow_, localSxlFirstBefore(rowSizes(), place.row, room.height())));
    leftColumn_ = std::min(
        place.column,
        std::max(leftColumn_, localSxlFirstBefore(columnSizes(), place.column, room.width())));
    currentRow_ = place.row - topRow_ + 1;
    currentColumn_ = place.column - leftColumn_ + 1;
}

void localSxl::moveToMiddle(localSxlPlace place) {
    topRow_ = localSxlFirstBefore(rowSizes(), place.row, room().height() / 2);
    leftColumn_ = localSxlFirstBefore(columnSizes(), place.column, room().width() / 2);
    currentRow_ = place.row - topRow_ + 1;
    currentColumn_ = place.column - leftColumn_ + 1;
}

void localSxl::rowsMove(bool isDown) {
    const localSxlPlace place = current();
    moveInto({isDown ? localSxlNextShown(rowSizes(), place.row)
                     : localSxlPreviousShown(rowSizes(), place.row),
              place.column});
}

void localSxl::columnsMove(bool isRight) {
    const localSxlPlace place = current();
    moveInto({place.row, isRight ? localSxlNextShown(columnSizes(), place.column)
                                 : localSxlPreviousShown(columnSizes(), place.column)});
}

void localSxl::pageMove(bool isDown) {
    const localSxlBandSizes sizes = rowSizes();
    const std::uint32_t column = current().column;
    const std::uint32_t top =
        isDown ? localSxlNextShown(sizes, lastWhole(sizes, topRow_, room().height()))
               : localSxlFirstBefore(sizes, localSxlPreviousShown(sizes, topRow_), room().height());
    if (!isDown && top == topRow_) {
        currentRow_ = 1;
        return;
    }
    topRow_ = top;
    moveInto({moved(top, std::int64_t{currentRow_} - 1), column});
}

void localSxl::scroll(std::int64_t rows, std::int64_t columns) {
    const localSxlPlace place = current();
    topRow_ = moved(topRow_, rows);
    leftColumn_ = moved(leftColumn_, columns);
    const std::uint32_t lastRow = lastWhole(rowSizes(), topRow_, room().height());
    const std::uint32_t lastColumn = lastWhole(columnSizes(), leftColumn_, room().width());
    moveInto({std::clamp(place.row, topRow_, std::max(topRow_, lastRow)),
              std::clamp(place.column, leftColumn_, std::max(leftColumn_, lastColumn))});
}

// --- what a person asks for

void localSxl::findString() {
    localDialogFindString dialog(findHistory_, findFlags_, this);
    const QPointer<localSxl> self(this);
    if (dialog.exec() != QDialog::Accepted || !self) {
        return;
    }
    const QString text = dialog.text().trimmed();
    findFlags_ = dialog.flags();
    std::erase(findHistory_, text.toStdU16String());
    findHistory_.push_back(text.toStdU16String());
    findText(text, findFlags_.testFlag(QTextDocument::FindCaseSensitively) ? Qt::CaseSensitive
                                                                           : Qt::CaseInsensitive);
}

void localSxl::findText(const QString& text, Qt::CaseSensitivity sensitivity) {
    inTurn([this, text, sensitivity] {
        const auto& cells = sheet().cells().all();
        const auto found =
            std::find_if(std::next(cells.begin()), cells.end(), [&](const localSxlCell& cell) {
                return QStringView(cell.text.view()).indexOf(text, 0, sensitivity) >= 0;
            });
        if (found != cells.end()) {
            moveToMiddle({std::max(found->place.row, 1U), std::max(found->place.column, 1U)});
            return;
        }
        writeLine({u"Не нашел... [", localVclText(text), u"] "});
        localVclAskOnWindowThread([&text] {
            localVclMessageShow(QStringLiteral("Не нашел \"%1\"").arg(text),
                                QStringLiteral("Поиск"));
        });
    });
}

void localSxl::gridEventCellActivate() {
    inTurn([this] {
        localContextUTF8* const context = sheet().context();
        int steps = 0;
        std::u16string_view name = u"СОБЫТИЕЯЧЕЙКААКТИВИРОВАТЬ";
        if (context != nullptr && context->funcFind(name, steps) == nullptr) {
            name = u"EVENTCELLACTIVATE";
        }
        if (context == nullptr || context->funcFind(name, steps) == nullptr) {
            return;
        }
        // From here on the procedure may close this widget and let go of the sheet.
        const localSxlPlace place = current();
        const localSlot sheetGiven = localSlot::reserve();
        const localSlot row = localSlot::reserve();
        const localSlot column = localSlot::reserve();
        sheetGiven->assign(link_->value);
        row->setVal(place.row);
        column->setVal(place.column);
        localValueDescription* const values[] = {sheetGiven.get(), row.get(), column.get()};
        int status = localErrorTypeOK;
        localSlot result;
        if (!context->funcExec(status, name, values, result.asResult())) {
            traceLine(localStatusWords(status), "gridEventCellActivate");
        }
    });
}

void localSxl::columnWidthAsk(std::uint32_t column) {
    inTurn([this, column] {
        const QString title =
            QStringLiteral("Колонка %1 (%2) :").arg(column).arg(cellText(0, column));
        const int width = columnSizes().of(column);
        const QPointer<localSxl> self(this);
        bool isAccepted = false;
        int wanted = 0;
        localVclAskOnWindowThread([&] {
            wanted = QInputDialog::getInt(this, title, QStringLiteral("Введите ширину:"), width, 0,
                                          widestColumn, 1, &isAccepted);
        });
        if (self && isAccepted) {
            sheet().columnWidthSet(column, wanted);
        }
    });
}

void localSxl::cellCopy() {
    inTurn([this] {
        const localSxlPlace place = current();
        QApplication::clipboard()->setText(cellText(place.row, place.column));
    });
}
