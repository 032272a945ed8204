// The editor of programs: line numbers, colours, search, jumps, load and save in a code page.
//
// It is a plain text edit that knows the name of its file. Shown by openWindow() it is the content
// of a window of its own, which carries the file's name, marks a text that is not saved and asks
// before it closes over one. Put into another widget it is an edit field and leaves the window
// around it alone.
//
// Work is bounded by what is in view: the line numbers and the colours are made for visible lines,
// a key costs work on its own line, whatever the length of the text.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QTextDocument>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "localInterpretatorUTF8/text/localString.h"
#include "localVCL/window/localVclTurn.h"
#include "localVCL/window/localVclWindow.h"

class localVclPrgTextHighlighter;
class localVclWidgetEditorLineNumberArea;

class localVclWidgetEditor : public QPlainTextEdit, public localVclWindowContent {
    Q_OBJECT

public:
    // What a person answers when a window closes over a text that is not saved.
    enum class CloseAnswer { save, discard, cancel };

    // An editor of a text under a file's name. The file is not read.
    explicit localVclWidgetEditor(std::u16string fileName, std::u16string_view text = {},
                                  QWidget* parent = nullptr);
    // The demonstration: a module of a few lines under the title "test". For trying the editor.
    localVclWidgetEditor();

    // Shows a file in an editor window of its own. Null when it could not be loaded, which load()
    // has reported, or nothing was chosen. The window owns the editor and goes when it is closed.
    static localVclWidgetEditor* open(const std::u16string& fileName,
                                      localString::possibleCodePage codePage);
    // Shows the editor by the window operation, at a place on the screen or where the system
    // chooses. The window owns it from then on.
    void openWindow(std::optional<QPoint> place = std::nullopt);

    const std::u16string& fileName() const { return fileName_; }
    const localVclPrgTextHighlighter& highlighter() const { return *highlighter_; }
    const std::vector<std::u16string>& findHistory() const { return findHistory_; }

    // The whole text; lines are parted by line feeds.
    std::u16string text() const;
    // Puts another text in the place of the whole, as not changed.
    void textSet(std::u16string_view text);
    // Moves the cursor to a position of the text that textSet() was given, in code units. The
    // position counts the carriage returns of line ends, which the text on screen has not.
    void positionShow(std::size_t position);
    // Moves the cursor to the start of a line (from 1) and brings it to the middle. A line that is
    // not there changes nothing.
    void lineShow(int line);

    // Left of the text: as wide as the digits of the last line's number, and 23 pixels.
    int lineNumberAreaWidth() const;
    void lineNumberAreaPaint(QPaintEvent* event);

    // Asks about a text that is not saved, and saves it when that is the answer.
    bool windowMayClose() override;

public slots:
    void highlightCurrentLine();
    // Searches on from the cursor, and once more from the other end. Leaves the cursor and the
    // scroll position and says "String not found." when there is no such text.
    void findText(const QString& text, QTextDocument::FindFlags flags);
    void findTextSlot();
    void findTextNextSlot();
    // Shows the list of procedures and functions, and goes to the one chosen. The list comes later
    // when another thread is in the language.
    void gotoProcedureSlot();
    // Reads a file; a person is asked for one when it is not there. False with the text left as it
    // was when nothing was chosen or the file could not be read, which the standard output stream
    // tells.
    bool load(const std::u16string& fileName, localString::possibleCodePage codePage);
    // Writes the file in UTF-8 with line feeds, whatever code page and line ends it was read in.
    // Meant. Asks first about characters that the file cannot hold. A failure shows the box of the
    // file writer and a line on the standard output stream; a refusal only the line.
    bool saveSlot();
    // As saveSlot under a name that a person chooses, which becomes the file's.
    bool saveAsSlot();
    void textChangedSlot();
    void updateLineNumberAreaWidth(int blockCount);
    void updateLineNumberArea(const QRect& rect, int dy);

protected:
    // Ask a person; tests answer by overriding them.
    virtual CloseAnswer closeAsk();
    virtual bool lossAsk(const QString& question);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    // "dd.MM.yyyy HH:mm:ss", for lines of diagnosis.
    static std::u16string timeNow();

    void build();
    bool keyPressed(QKeyEvent* event);
    void commentSelection();
    void lineAskAndShow();
    void fileNameSet(std::u16string fileName);
    void titleSet(const QString& title);
    void modifiedShow();
    // The name under which the file is found, also when a program has changed the working
    // directory.
    std::u16string fileWritten() const;
    // Whether a text may be saved: the file can hold all of it, or a person agrees to what is lost.
    bool lossAgreed(std::u16string_view written);

    localVclWidgetEditorLineNumberArea* lineNumberArea_ = nullptr;
    localVclPrgTextHighlighter* highlighter_ = nullptr;
    std::u16string fileName_;
    std::u16string folder_;                    // the working directory when the file got its name
    std::vector<std::u16string> findHistory_;  // most recent last
    QTextDocument::FindFlags findFlags_;
    // Where the text given had a carriage return that the text on screen has not.
    std::vector<std::size_t> carriageReturns_;
    std::size_t lossAgreed_ = 0;  // characters that a person has agreed to lose
    QPointer<QWidget> openedWindow_;
    localVclTurnWork turnWork_;
};
