// What the language asks of the program around it: a screen, a person, other programs.
//
// The language knows no toolkit. The host that stands at first serves a terminal: boxes become
// lines, questions get their default answer, and what needs a window is refused. The window program
// installs a host of real widgets, tests one that records.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localString.h"

class localHost {
public:
    enum class Cursor { wait, arrow, restored };
    enum class MessageKind { information, warning, critical };

    virtual ~localHost() = default;

    // The host in force. Installing does not take ownership; null brings the terminal host back.
    static localHost& current();
    static void install(localHost* host);

    // Overrides the mouse pointer, or takes back the last override.
    virtual void setCursor(Cursor cursor);

    // A modal box with one button.
    virtual void messageBox(MessageKind kind, std::u16string_view title, std::u16string_view text);

    // The box of the halt; the process ends when it returns.
    virtual void haltBox(std::u16string_view title, std::u16string_view text);

    // Shows a list of lines in a modal dialog. False where there is none to show it to (status 26).
    virtual bool showList(std::u16string_view title, const std::vector<std::u16string>& lines);

    // Lets a person choose a line in a modal dialog, `startRow` (1-based, 0 none) being selected at
    // first. Gives the 1-based row, 0 when the dialog was rejected, nothing where there is nobody
    // to ask (status 26).
    virtual std::optional<std::size_t> chooseRow(std::u16string_view title,
                                                 const std::vector<std::u16string>& lines,
                                                 std::size_t startRow);

    // Starts an outside program by a command line and does not wait. Gives whether it could be
    // started.
    virtual bool startProgram(std::u16string_view commandLine);

    // Lists the working directory for a person.
    virtual void showDirectory();

    // Opens a file in the editor of the system, without waiting.
    virtual bool openOutsideEditor(std::u16string_view fileName);

    // Opens a file in the program's own editor. Gives false where there is none.
    virtual bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage);

protected:
    localHost() = default;

private:
    class Terminal;
};
