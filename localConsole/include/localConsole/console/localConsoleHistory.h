// The commands that were typed, kept over restarts in a file of one UTF-8 line each, which only
// grows.
//
// A line reaches the file in one write, so that a process killed at any moment leaves it whole or
// absent. The system may cut the write of a long line even so; a mark beside the file, the same
// name and ".part", holds such a line while it is written. By it a piece is told from a line; the
// piece does not count and goes with the next line that is written.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class localConsoleHistory {
public:
    // Reads the file that the search for files finds. When there is none, a box says so, and the
    // first command makes one in the working directory.
    localConsoleHistory();

    // Enters a command unless it is the last one already, and stands behind the last.
    void enter(const QString& command);

    // Stands behind the last command.
    void goToEnd() { index_ = lines_.size(); }

    // The line before the place in the history, and goes there. Nothing at the oldest.
    std::optional<QString> back();
    // Goes one place on and gives the line after that one, empty when there is none. Nothing at the
    // end.
    std::optional<QString> forward();

    const QStringList& lines() const { return lines_; }

private:
    QString fileName_;
    QStringList lines_;
    qsizetype index_ = 0;  // equal to the size when no line of the history is shown
};
