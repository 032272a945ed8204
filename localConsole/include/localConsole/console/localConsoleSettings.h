// What the console remembers between starts: the place and size of its window, and the commands of
// the function keys where a person has named them. The file localConsole.ini lies in the folder
// where the process was started and holds a value list as JSON; a plain JSON object of keys and
// values does as well. That list is a value of the language: all this is done under its turn.
#pragma once

#include <QRect>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

#include "localInterpretatorUTF8/value/localSlot.h"

class localValueList;

class localConsoleSettings {
public:
    // Reads the file. One that is missing or cannot be read gives no settings.
    localConsoleSettings();
    ~localConsoleSettings();
    localConsoleSettings(const localConsoleSettings&) = delete;
    localConsoleSettings& operator=(const localConsoleSettings&) = delete;

    // The file's text as it was read.
    const std::u16string& text() const { return text_; }
    // Why there are no settings; empty when there are.
    const std::u16string& failure() const { return failure_; }

    // "width", "height", "x", "y", rounded; nothing when the file names no such number.
    std::optional<int> number(std::u16string_view key) const;
    // "F1" to "F12".
    std::optional<QString> command(std::u16string_view key) const;

    // Writes the window's geometry into the file; what else a person wrote there stays byte for
    // byte. The file is replaced in one step, so that a process killed at any moment leaves the old
    // or the new one, and perhaps localConsole.ini.new beside it until the next writing. False when
    // it cannot be written or holds no such list; it stays then.
    bool geometrySave(const QRect& geometry);

private:
    const localValueList& list() const;

    QString fileName_;
    std::u16string text_;
    std::u16string failure_;
    localSlot list_;
};
