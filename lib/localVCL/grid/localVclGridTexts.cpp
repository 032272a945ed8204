// What stands in a grid's cells: asked of the rows and computed by formulas, and kept.
#include <QDateTime>

#include <algorithm>

#include "grid/localVclGridScope.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/grid/localVclGrid200123.h"
#include "localVCL/text/localVclText.h"

// --- The scope

// Declares what formulas may read in a new scope.
void localVclGrid200123::scopeFill() {
    scope_->variable(u"COLUMNNUMBER").setVal(-1.0);
    scope_->variable(u"ROWNUMBER").setVal(-1.0);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        variableFill(i);
    }
}

void localVclGrid200123::variableFill(std::size_t column) {
    if (const std::u16string& id = columns[column]->id; !id.empty() && scope_->stands()) {
        scope_->variable(id).setVal(static_cast<double>(column + 1));
    }
}

void localVclGrid200123::scopeRenew(localContextUTF8* above) {
    scope_ = std::make_shared<localVclGridScope>(above);
    scopeFill();
}

localContextUTF8* localVclGrid200123::context() {
    if (!scope_->stands()) {
        if (localContextUTF8::globalContext == nullptr) {
            return nullptr;
        }
        scopeRenew(nullptr);
    }
    return &scope_->context();
}

// --- When texts are made

bool localVclGrid200123::isInLanguage() const {
    const auto isComputed = [](const auto& column) {
        return !column->id.empty() || !column->formula.empty();
    };
    return rows_ == nullptr || rows_->needsTurn() || std::ranges::any_of(columns, isComputed);
}

void localVclGrid200123::refresh() {
    request(rect());
    update();
}

// Work of the language runs from the event loop alone, and never while a key or a paint is under
// way: a formula may write lines, open a box, and close the grid's own window.
void localVclGrid200123::request(const QRegion& region) {
    if (!isInLanguage() || !isVisible()) {
        return;
    }
    if (requested_.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [this] { turnWork_.ask([this] { collectRequested(); }); }, Qt::QueuedConnection);
    }
    requested_ += region;
}

void localVclGrid200123::collectRequested() {
    // A formula that waits for a person lets the grid be painted meanwhile, and be asked again.
    if (isCollecting_) {
        return;
    }
    const QPointer<localVclGrid200123> self(this);
    const QRegion changed = collect(std::exchange(requested_, {}));
    if (self) {
        update(changed);
        cursorToRows();
        fitRowHeads();
        requestAgain();
    }
}

// What was asked for while the grid was at work in the language.
void localVclGrid200123::requestAgain() {
    if (const QRegion again = std::exchange(requested_, {}); !again.isEmpty()) {
        request(again);
    }
}

// Rows may have become fewer.
void localVclGrid200123::cursorToRows() {
    if (rows_ == nullptr || columns.empty() || mCurRow < headRows || hasRow(mCurRow)) {
        return;
    }
    if (rows_->count() > firstRow) {
        setCurrentCell(static_cast<unsigned>(rows_->count() - 1 - firstRow) + headRows, mCurCol);
    } else if (rows_->count() > 0) {
        goToEnd();
    } else if (firstRow > 0 || mCurRow > headRows) {
        goToStart();
    }
}

// The number of the last row has room in front of it.
void localVclGrid200123::fitRowHeads() {
    const QString last = rows_ == nullptr ? QString() : QString::number(rows_->count());
    const int needed = fontMetrics().horizontalAdvance(last) + 2 * cellMargin;
    if (const int width = std::max(scaled(statedFixedColWidth), needed); width != fixedColWidth) {
        fixedColWidth = width;
        reposition();
        refresh();
    }
}

// --- Making them

// Gives what has changed. The grid may have gone when this returns.
QRegion localVclGrid200123::collect(const QRegion& region) {
    const Watch watch(*this);
    const auto keptRows = rows_;
    isCollecting_ = true;
    const bool isWhole = QRegion(rect()).subtracted(region).isEmpty();
    faultsBefore_ = faults_;
    Collected collected;
    if (isWhole) {
        faults_.clear();
    } else {
        collected.shown = shown_;
    }
    for (unsigned row = 1; row < rowsInSight(); ++row) {
        if (region.intersects(rowRectangle(row)) && !collectRow(row, region, collected)) {
            break;
        }
    }
    if (watch.isGone()) {
        return {};
    }
    isCollecting_ = false;
    if (!watch.stands()) {
        requested_ += rect();
        return {};
    }
    shown_ = std::move(collected.shown);
    fresh_ += region;
    // A button of a form reads the row that a person sees under the cursor.
    if (rows_ != nullptr) {
        rows_->enter(rowNumber(mCurRow));
        leaveRow();
    }
    return collected.changed;
}

// False when the grid is no longer what it was.
bool localVclGrid200123::collectRow(unsigned row, const QRegion& region, Collected& collected) {
    const Watch watch(*this);
    const RowNumber number = rowNumber(row);
    const bool isThere = enterRow(number);
    QRect changed;
    for (unsigned column = 0; watch.stands() && column <= lastColumn(); ++column) {
        const QRect cell = cellRectangle(row, column);
        if (cell.left() > region.boundingRect().right()) {
            break;
        }
        if (!region.intersects(cell)) {
            continue;
        }
        Shown now;
        if (isThere) {
            now.text = cellText(row, column);
            if (watch.stands() && column < fixedCols) {
                now.pixmap = cellPixmap(row, column);
            }
        }
        if (!watch.stands()) {
            return false;
        }
        const Cell key(number, columnOf(column));
        const auto before = shown_.constFind(key);
        if (before == shown_.cend() || before->text != now.text ||
            before->pixmap.cacheKey() != now.pixmap.cacheKey()) {
            changed |= cell;
        }
        collected.shown.insert(key, now);
    }
    collected.changed += changed;
    return watch.stands();
}

// Makes a row the one that texts are made of. False when there is none, and when the grid is no
// longer what it was.
bool localVclGrid200123::enterRow(RowNumber row) {
    if (rows_ != nullptr && !rows_->enter(row)) {
        return false;
    }
    if (!isInLanguage()) {
        return true;
    }
    localContextUTF8* const scope = context();
    if (scope == nullptr) {
        return false;
    }
    // Counted as on the screen: the first row behind the head has its row number there.
    scope_->variable(u"ROWNUMBER").setVal(static_cast<double>(row + headRows));
    if (rows_ != nullptr) {
        rows_->putVariables(*scope);
    }
    return computeFormulas(row);
}

void localVclGrid200123::leaveRow() {
    if (rows_ != nullptr) {
        rows_->leave(isInLanguage() ? context() : nullptr);
    }
}

// Each into the variable of its column, from left to right, so that a formula may use those before
// it. False when the grid is no longer what it was.
bool localVclGrid200123::computeFormulas(RowNumber row) {
    const Watch watch(*this);
    const auto scope = scope_;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::u16string id = columns[i]->id;
        const std::u16string formula = columns[i]->formula;
        if (id.empty() || formula.empty()) {
            continue;
        }
        scope->variable(u"COLUMNNUMBER").setVal(static_cast<double>(i + 1));
        int status = localErrorTypeOK;
        localSlot value;
        const bool isComputed = scope->evaluate(status, formula, value);
        if (isComputed) {
            scope->variable(id).assign(*value);
        } else {
            scope->variable(id).setVal(localText());
        }
        if (watch.stands() && !isComputed) {
            tellFault(Cell(row, static_cast<int>(i)), status);
        }
        if (!watch.stands()) {
            return false;
        }
    }
    return true;
}

// A fault is told when it comes to stand in view, and not at each paint.
void localVclGrid200123::tellFault(const Cell& cell, int status) {
    const int before = faults_.value(cell, faultsBefore_.value(cell, localErrorTypeOK));
    faults_.insert(cell, status);
    if (before != status) {
        const QString now =
            QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"));
        traceLine({localStatusWords(status), u" ", localVclText(now)}, "localVclGrid200123");
    }
}

// --- What stands in a cell

QString localVclGrid200123::cellText(unsigned row, unsigned column) {
    const int number = columnOf(column);
    if (number >= static_cast<int>(columns.size())) {
        return tr(" error ");
    }
    // While texts are collected, the row is the one they are collected of.
    if (isCollecting_) {
        return rowText(rowNumber(row), number);
    }
    const Watch watch(*this);
    const QString text = enterRow(rowNumber(row)) ? rowText(rowNumber(row), number) : QString();
    if (watch.stands()) {
        leaveRow();
    }
    return text;
}

QPixmap localVclGrid200123::cellPixmap(unsigned row, unsigned column) {
    if (rows_ == nullptr || column >= fixedCols) {
        return {};
    }
    if (isCollecting_) {
        return rows_->pixmap();
    }
    const QPixmap pixmap = rows_->enter(rowNumber(row)) ? rows_->pixmap() : QPixmap();
    rows_->leave(nullptr);
    return pixmap;
}

QString localVclGrid200123::rowText(RowNumber row, int column) {
    if (column == rowHead && rows_ != nullptr) {
        return rows_->headText();
    }
    if (column != rowHead) {
        const localVclGridColumn& shown = *columns[static_cast<std::size_t>(column)];
        const std::u16string expression = shown.id.empty() ? shown.formula : shown.id;
        if (!expression.empty()) {
            int status = localErrorTypeOK;
            return evaluatedText(status, column, expression).value_or(QString());
        }
        if (rows_ != nullptr) {
            return rows_->text(shown);
        }
    }
    return placeText(column + static_cast<int>(fixedCols), row + headRows);
}

QString localVclGrid200123::placeText(RowNumber column, RowNumber row) {
    constexpr int places = 3;
    return QStringLiteral(" %1-%2").arg(column, places).arg(row, places);
}

std::optional<QString> localVclGrid200123::evaluatedText(int& status, int column,
                                                         const std::u16string& expression) {
    const auto scope = scope_;
    scope->variable(u"COLUMNNUMBER").setVal(static_cast<double>(column + 1));
    localSlot value;
    if (!scope->evaluate(status, expression, value)) {
        return std::nullopt;
    }
    return localVclQString(value->toString());
}
