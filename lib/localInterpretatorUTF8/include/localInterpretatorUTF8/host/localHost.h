// What the language asks of the program around it: a screen, a person, other programs.
//
// The language knows no toolkit. The host that stands at first serves a terminal: boxes become
// lines, questions get their default answer, and what needs a screen is refused. The window program
// installs a host of real widgets, tests one that records.
//
// Lines of text are no matter of the host: they go to the standard output stream (localTrace.h).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/host/localReport.h"
#include "localInterpretatorUTF8/text/localString.h"

class localHost {
public:
    enum class Cursor { wait, arrow, restored };

    virtual ~localHost() = default;

    // The host in force. Installing does not take ownership; null brings the terminal host back.
    static localHost& current();
    static void install(localHost* host);

    // Whether there is a screen with a person before it. Where there is none, what needs one is
    // not done, and the call of a program that asked for it fails with status 26.
    virtual bool hasScreen() const;

    // --- The pointer and the bell

    // Overrides the mouse pointer, or takes back the last override.
    virtual void setCursor(Cursor cursor);

    // A short sound that asks for attention. A terminal gives none.
    virtual void beep();

    // --- Reports and questions

    // A modal box. Gives the button that was pressed. A terminal writes the box as lines and gives
    // the default button.
    virtual localReport::Button report(const localReport& report);

    // The message window of a program: a report with one button, of which a very long text is
    // shown cut, with the whole beside. False without a screen.
    virtual bool showMessage(const localReport& message);

    // The box of the halt; the process ends when it returns.
    virtual void haltBox(std::u16string_view title, std::u16string_view text);

    // --- Choices. Nothing without a screen.

    // Lets a person choose a line in a modal dialog, `startRow` (1-based, 0 none) being selected at
    // first. Gives the 1-based row, 0 when the dialog was rejected.
    virtual std::optional<std::size_t> chooseRow(std::u16string_view title,
                                                 const std::vector<std::u16string>& lines,
                                                 std::size_t startRow);

    // Lets a person choose a date in a modal dialog, which begins at `start` ("yyyyMMdd"; today for
    // any other text). Gives the date in that form, empty when the dialog was rejected.
    virtual std::optional<std::u16string> chooseDate(std::u16string_view start);

    // Lets a person choose a file that is there, in a modal dialog which begins in a folder. A
    // filter is written "*.prg *.txt", with words and brackets around it where it has a name. Gives
    // the full name, empty when none was chosen and without a screen.
    virtual std::u16string chooseFile(std::u16string_view title, std::u16string_view folder,
                                      const std::vector<std::u16string>& filters);

    // --- Texts and lists to look at

    // Opens a window with a text. False without a screen.
    virtual bool showText(std::u16string_view title, std::u16string_view text);

    // Shows a list of lines in a modal dialog. False without a screen.
    virtual bool showList(std::u16string_view title, const std::vector<std::u16string>& lines);

    // Lists the working directory for a person.
    virtual void showDirectory();

    // Opens a file in the program's own editor. Gives false where there is none.
    virtual bool openEditor(std::u16string_view fileName, localString::possibleCodePage codePage);

    // --- Other programs

    // Starts an outside program by a command line and does not wait. Gives whether it could be
    // started.
    virtual bool startProgram(std::u16string_view commandLine);

    // Opens a file in the editor of the system, without waiting.
    virtual bool openOutsideEditor(std::u16string_view fileName);

protected:
    localHost() = default;

private:
    class Terminal;
};
