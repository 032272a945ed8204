// What stands in the rows of a grid: a value table, the buffer of a query, a directory with the
// path to it, a list. The grid is its only user and asks for the rows in view.
//
// Rows have the numbers 0, 1, and so on. Rows pinned under the head, which do not scroll, have the
// numbers below: -1 is the lowest of them, -2 the one above.
#pragma once

#include <QPixmap>
#include <QString>

class localContextUTF8;
struct localVclGridColumn;

class localVclGridRows {
public:
    using Number = qint64;

    virtual ~localVclGridRows() = default;

    // Whether the rows come out of the language: the grid then asks for them under its turn only,
    // and shows what it showed last while another thread has it.
    virtual bool needsTurn() const = 0;
    // How many rows there are from 0 on, as far as it is known without the turn.
    virtual Number count() const = 0;
    // Makes a row the one that the operations below tell of. False when there is no such row, which
    // is then shown empty.
    virtual bool enter(Number row) = 0;
    // Lets go of the row: nothing of it is kept behind this, in variables of the scope neither
    // where there is one.
    virtual void leave(localContextUTF8*) {}
    // The row's cell of a column that has neither a variable nor a formula.
    virtual QString text(const localVclGridColumn&) { return {}; }
    // What stands in front of the row.
    virtual QString headText() { return {}; }
    // 16 by 16 pixels, or null.
    virtual QPixmap pixmap() { return {}; }
    // Puts the row's cells into variables of the grid's scope, for formulas. Under the turn.
    virtual void putVariables(localContextUTF8&) {}
};
