// What is seen: line numbers, the current line, and the colours of the lines in view.

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

#include "editor/localVclWidgetEditorLineNumberArea.h"
#include "localVCL/editor/localVclPrgTextHighlighter.h"
#include "localVCL/editor/localVclWidgetEditor.h"

namespace {

constexpr int margin = 5;              // above, below and right of the text
constexpr int lineNumberPadding = 23;  // pixels beside the digits
constexpr int lineNumberRight = 8;     // of them, right of the digits

const QColor currentLineColor(0xff, 0xf6, 0xd5);
const QColor lineNumberPaper(0xec, 0xee, 0xf1);
const QColor lineNumberInk(0x6b, 0x72, 0x7d);
const QColor lineNumberInkOfCurrent(0x10, 0x14, 0x1c);

int digitsOf(int number) {
    int digits = 1;
    for (; number >= 10; number /= 10) {
        ++digits;
    }
    return digits;
}

}  // namespace

int localVclWidgetEditor::lineNumberAreaWidth() const {
    return fontMetrics().horizontalAdvance(u'9') * digitsOf(blockCount()) + lineNumberPadding;
}

void localVclWidgetEditor::updateLineNumberAreaWidth(int) {
    const int width = lineNumberAreaWidth();
    if (viewportMargins().left() != width) {
        setViewportMargins(width, margin, margin, margin);
        // The editor's own size stays, so no resize event places the strip anew.
        lineNumberArea_->resize(width, lineNumberArea_->height());
    }
}

void localVclWidgetEditor::updateLineNumberArea(const QRect& rect, int dy) {
    if (dy != 0) {
        lineNumberArea_->scroll(0, dy);
    } else {
        lineNumberArea_->update(0, rect.y() + margin, lineNumberArea_->width(), rect.height());
    }
    if (rect.contains(viewport()->rect())) {
        updateLineNumberAreaWidth(blockCount());
    }
}

void localVclWidgetEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    const QRect contents = contentsRect();
    lineNumberArea_->setGeometry(contents.left(), contents.top(), lineNumberAreaWidth(),
                                 contents.height());
}

void localVclWidgetEditor::paintEvent(QPaintEvent* event) {
    const int first = firstVisibleBlock().blockNumber();
    highlighter_->showLines(first, first + viewport()->height() / fontMetrics().lineSpacing() + 1);
    QPlainTextEdit::paintEvent(event);
}

void localVclWidgetEditor::lineNumberAreaPaint(QPaintEvent* event) {
    QPainter painter(lineNumberArea_);
    painter.fillRect(event->rect(), lineNumberPaper);

    const int current = textCursor().blockNumber();
    const int width = lineNumberArea_->width() - lineNumberRight;
    const int height = fontMetrics().height();
    QTextBlock block = firstVisibleBlock();
    // The strip starts above the text, by the margin.
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top() + margin;
    while (block.isValid() && top <= event->rect().bottom()) {
        const qreal bottom = top + blockBoundingRect(block).height();
        if (block.isVisible() && bottom >= event->rect().top()) {
            const int line = block.blockNumber();
            painter.setPen(line == current ? lineNumberInkOfCurrent : lineNumberInk);
            painter.drawText(0, qRound(top), width, height, Qt::AlignRight,
                             QString::number(line + 1));
        }
        block = block.next();
        top = bottom;
    }
}

void localVclWidgetEditor::highlightCurrentLine() {
    QTextEdit::ExtraSelection selection;
    selection.format.setBackground(currentLineColor);
    selection.format.setProperty(QTextFormat::FullWidthSelection, true);
    selection.cursor = textCursor();
    selection.cursor.clearSelection();
    setExtraSelections({selection});
    lineNumberArea_->update();
}
