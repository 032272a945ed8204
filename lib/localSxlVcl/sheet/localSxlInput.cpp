// Keys, mouse and wheel of the sheet's widget.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

#include "localSxl/paint/localSxlBands.h"
#include "localSxlVcl/sheet/localSxl.h"

namespace {

constexpr int zoomStep = 10;       // percent
constexpr int borderReach = 4;     // pixels to the left and right of a column's border
constexpr int narrowestDrawn = 5;  // pixels; only the dialog hides a column
constexpr int wheelNotch = 120;    // as the toolkit counts
constexpr int rowsANotch = 3;

std::optional<std::uint32_t> bandAt(const std::vector<localSxlBand>& bands, int at) {
    for (const localSxlBand& band : bands) {
        if (at >= band.at && at < band.at + band.size) {
            return band.number;
        }
    }
    return std::nullopt;
}

// Whole notches of the wheel; what is left is kept for the next time.
int notchesOf(int& rest, int way) {
    rest += way;
    const int notches = rest / wheelNotch;
    rest -= notches * wheelNotch;
    return notches;
}

}  // namespace

// --- keys

void localSxl::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
    if (event->modifiers().testFlag(Qt::AltModifier) && key == Qt::Key_F10) {
        window()->isMaximized() ? window()->showNormal() : window()->showMaximized();
        update();
    } else if (isControl && key == Qt::Key_F) {
        findString();
    } else if (isControl && key == Qt::Key_C) {
        cellCopy();
    } else if (isControl && key == Qt::Key_P) {
        sheetPrint();
    } else if (isControl && key == Qt::Key_E) {
        sheetExportAsk();
    } else if (isControl && (key == Qt::Key_Plus || key == Qt::Key_Equal)) {
        zoomSet(zoom_ + zoomStep);
    } else if (isControl && key == Qt::Key_Minus) {
        zoomSet(zoom_ - zoomStep);
    } else if (isControl && key == Qt::Key_0) {
        zoomSet(100);
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        gridEventCellActivate();
    } else if (!moves(key, isControl)) {
        QWidget::keyPressEvent(event);
    }
}

bool localSxl::moves(int key, bool isControl) {
    switch (key) {
        case Qt::Key_Down:
        case Qt::Key_Up:
            inTurn([this, key] { rowsMove(key == Qt::Key_Down); });
            return true;
        case Qt::Key_Right:
        case Qt::Key_Left:
            inTurn([this, key] { columnsMove(key == Qt::Key_Right); });
            return true;
        case Qt::Key_PageDown:
        case Qt::Key_PageUp:
            inTurn([this, key] { pageMove(key == Qt::Key_PageDown); });
            return true;
        case Qt::Key_Home:
        case Qt::Key_End:
            if (isControl) {
                inTurn([this, key] {
                    const std::uint32_t last = std::max(sheet().cells().lastRow(), 1U);
                    moveInto({key == Qt::Key_Home ? 1 : last, current().column});
                });
            }
            return isControl;
        default:
            return false;
    }
}

// --- mouse

QPoint localSxl::inSheet(QPoint point) const {
    return {point.x() * 100 / zoom_, point.y() * 100 / zoom_};
}

bool localSxl::inHeader(QPoint point) const {
    return point.y() < headerHeight() && point.x() >= headerWidth();
}

std::optional<std::uint32_t> localSxl::columnAt(int x) const {
    return bandAt(localSxlBands(columnSizes(), leftColumn_, room().width()), x - headerWidth());
}

std::optional<std::uint32_t> localSxl::rowAt(int y) const {
    return bandAt(localSxlBands(rowSizes(), topRow_, room().height()), y - headerHeight());
}

std::optional<std::uint32_t> localSxl::borderAt(QPoint point) const {
    const int left = headerWidth();
    if (point.y() >= headerHeight()) {
        return std::nullopt;
    }
    for (const localSxlBand& band : localSxlBands(columnSizes(), leftColumn_, room().width())) {
        if (std::abs(point.x() - left - band.at - band.size) <= borderReach) {
            return band.number;
        }
    }
    return std::nullopt;
}

void localSxl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    inTurn([this, point = inSheet(event->position().toPoint())] {
        if (const auto column = borderAt(point)) {
            drawn_ = Drawn{*column, point.x(), columnSizes().of(*column)};
            return;
        }
        const auto row = rowAt(point.y());
        const auto column = columnAt(point.x());
        if (row && column) {
            moveInto({*row, *column});
        }
    });
}

void localSxl::mouseDoubleClickEvent(QMouseEvent* event) {
    drawn_.reset();
    inTurn([this, point = inSheet(event->position().toPoint())] {
        const auto column = borderAt(point) ? borderAt(point) : columnAt(point.x());
        if (inHeader(point) && column) {
            columnWidthAsk(*column);
        }
    });
}

void localSxl::mouseMoveEvent(QMouseEvent* event) {
    inTurn([this, point = inSheet(event->position().toPoint())] {
        if (drawn_) {
            const int width = std::max(narrowestDrawn, drawn_->width + point.x() - drawn_->from);
            sheet().columnWidthSet(drawn_->column, width);
        }
        setCursor(drawn_ || borderAt(point) ? Qt::SplitHCursor : Qt::ArrowCursor);
    });
}

void localSxl::mouseReleaseEvent(QMouseEvent*) {
    drawn_.reset();
}

void localSxl::wheelEvent(QWheelEvent* event) {
    const QPoint way = event->angleDelta();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoomSet(zoom_ + zoomStep * notchesOf(wheelRest_.ry(), way.y()));
        return;
    }
    const bool isSideways = event->modifiers().testFlag(Qt::ShiftModifier);
    const int rows = isSideways ? 0 : notchesOf(wheelRest_.ry(), way.y());
    const int columns = notchesOf(wheelRest_.rx(), isSideways && way.x() == 0 ? way.y() : way.x());
    inTurn([this, rows, columns] { scroll(-std::int64_t{rows} * rowsANotch, -columns); });
}
