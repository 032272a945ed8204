// Colours of a program's text: keywords, class names, functions and operators, strings, comments.
//
// A line is coloured when somebody is about to see it. Putting a text of any length in the document
// costs nothing here but for its first lines; showLines() colours what comes into view. A line that
// has colours is coloured again when its text changes, also out of view; no other line is touched,
// since no colouring reaches over a line's end.
//
// The state of a line (QTextBlock::userState) is 0 when it is coloured and -1 as long as it is not.
#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <cstdint>
#include <memory>

class localVclPrgTextRules;

class localVclPrgTextHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit localVclPrgTextHighlighter(QTextDocument* document);
    ~localVclPrgTextHighlighter() override;

    // Colours the lines from `first` to `last` (0-based) and some more around them, so that
    // scrolling finds colours. New lines that come to stand there later are coloured at once.
    void showLines(int first, int last);

    // How many times a line was coloured so far.
    std::int64_t colouredCount() const { return colouredCount_; }

protected:
    void highlightBlock(const QString& text) override;

private:
    static constexpr int around = 100;

    std::unique_ptr<const localVclPrgTextRules> rules_;
    QTextCharFormat keywordFormat_;
    QTextCharFormat classNameFormat_;
    QTextCharFormat functionFormat_;  // of operators too
    QTextCharFormat stringFormat_;
    QTextCharFormat commentFormat_;
    // The lines in view with those around them.
    int firstShown_ = 0;
    int lastShown_ = around;
    std::int64_t colouredCount_ = 0;
};
