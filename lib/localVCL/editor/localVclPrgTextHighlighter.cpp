#include "localVCL/editor/localVclPrgTextHighlighter.h"

#include <QTextDocument>

#include <algorithm>

#include "editor/localVclPrgTextRules.h"

namespace {

constexpr int stateNotColoured = -1;
constexpr int stateColoured = 0;

}  // namespace

localVclPrgTextHighlighter::localVclPrgTextHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document),
      rules_(std::make_unique<localVclPrgTextRules>(localVclPrgTextFunctionNames())) {
    keywordFormat_.setForeground(Qt::red);
    classNameFormat_.setForeground(Qt::darkMagenta);
    classNameFormat_.setFontWeight(QFont::Bold);
    functionFormat_.setForeground(Qt::red);
    functionFormat_.setFontItalic(true);
    stringFormat_.setForeground(Qt::black);
    commentFormat_.setForeground(Qt::darkGreen);
    commentFormat_.setFontItalic(true);
}

localVclPrgTextHighlighter::~localVclPrgTextHighlighter() = default;

void localVclPrgTextHighlighter::showLines(int first, int last) {
    firstShown_ = first - around;
    lastShown_ = last + around;
    QTextBlock block = document()->findBlockByNumber(std::max(firstShown_, 0));
    for (int line = block.blockNumber(); block.isValid() && line <= lastShown_; ++line) {
        if (block.userState() == stateNotColoured) {
            rehighlightBlock(block);
        }
        block = block.next();
    }
}

void localVclPrgTextHighlighter::highlightBlock(const QString& text) {
    const QTextBlock block = currentBlock();
    if (block.userState() == stateNotColoured) {
        const int line = block.blockNumber();
        if (line < firstShown_ || line > lastShown_) {
            return;
        }
    }
    ++colouredCount_;
    for (const localVclPrgTextSpan& span : rules_->spans(text)) {
        switch (span.kind) {
            case localVclPrgTextKind::keyword:
                setFormat(span.start, span.length, keywordFormat_);
                break;
            case localVclPrgTextKind::className:
                setFormat(span.start, span.length, classNameFormat_);
                break;
            case localVclPrgTextKind::function:
                setFormat(span.start, span.length, functionFormat_);
                break;
            case localVclPrgTextKind::string:
                setFormat(span.start, span.length, stringFormat_);
                break;
            case localVclPrgTextKind::comment:
                setFormat(span.start, span.length, commentFormat_);
                break;
            case localVclPrgTextKind::plain:
                break;
        }
    }
    // A comment always ends with its line, so no line hands the state 1 on to the next.
    setCurrentBlockState(stateColoured);
}
