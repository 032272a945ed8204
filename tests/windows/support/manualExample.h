// The examples of the manual that need the window program, read as acts of a person and as what the
// person gets to see.
//
// An example is for the window program when its first line is that of
// tests/support/manualWindowMark.txt; all others are run by the terminal program. The pages of
// commands and keys have sessions: what is typed, line by line. All other pages have programs. Keys
// stand in square brackets, [Ctrl+S]; a typed line that does not end with one ends with Enter.
// Comments on lines of their own tell the rest:
//   // -> TEXT           a line of output; so does a comment behind a printing statement
//   // окно KIND: TITLE  another window opens
//   // видно: TEXT       a line of text in the window in front
//   // строка N: TEXT    where the editor's cursor stands
//   // выделено: TEXT    what is selected in the editor
//   // развернуто: да    whether the window in front fills the screen, да or нет
//   // запущено: TEXT    an outside program with its arguments
//   // нажать TEXT       what is typed into the window in front; a session does without it
// Three dots stand for any text; a line of output that is nothing else, for any lines.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace manualExample {

struct step {
    enum class Kind { type, window, seen, editorLine, selected, maximized, started };

    Kind kind = Kind::type;
    QString text;
    QString detail;  // the kind of a window, the number of a line
};

struct example {
    QString place;  // class and page, as "CONTEXT:COLOR"
    QString text;
    bool isSession = false;
    std::vector<step> steps;
    QStringList output;  // as told
};

// The examples of the book for the window program; how many there are in all is left in `total`.
std::vector<example> ofBook(const QString& fileName, int& total);

// Whether a text is as told, three dots standing for anything.
bool isAsTold(const QString& text, const QString& told);

// The first difference between lines of output and what is told of them; empty when there is none.
// Blanks around a line do not count, nor does a trace tail that is not told.
QString difference(const QStringList& output, const QStringList& told);

}  // namespace manualExample
