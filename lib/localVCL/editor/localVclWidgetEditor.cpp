#include "localVCL/editor/localVclWidgetEditor.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QFontMetrics>
#include <QMessageBox>
#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <memory>

#include "editor/localVclWidgetEditorLineNumberArea.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/editor/localVclPrgTextHighlighter.h"
#include "localVCL/font/localVclFont.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr int fixedPitchFont = 3;
constexpr int tabColumns = 8;
// The size of a new editor's text, in columns and lines.
constexpr int columnsShown = 100;
constexpr int linesShown = 34;

constexpr std::u16string_view demonstrationFileName = u"W:\\4\\test.prgS";
constexpr std::u16string_view demonstrationText = u"пол=создатьОбъект(\"Справочник.Товары\");\n"
                                                  u"пол.выбратьЭлементы();\n"
                                                  u"если 1=пол.выбран() тогда\n"
                                                  u"  сообщить(пол.наименование);\n"
                                                  u"конецЕсли;\n"
                                                  u"возврат 1;\n";

// White paper and dark blue ink: keywords are red, comments green and strings black, so what has no
// colour of its own differs from each of them.
QPalette editorPalette(QPalette palette) {
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, QColor(0x00, 0x00, 0xa0));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6c, 0xc0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    // The selection looks the same while a search dialog has the focus.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x2a, 0x6c, 0xc0));
    return palette;
}

}  // namespace

localVclWidgetEditor::localVclWidgetEditor(std::u16string fileName, std::u16string_view text,
                                           QWidget* parent)
    : QPlainTextEdit(parent) {
    build();
    textSet(text);
    fileNameSet(std::move(fileName));
}

localVclWidgetEditor::localVclWidgetEditor()
    : localVclWidgetEditor(std::u16string(demonstrationFileName), demonstrationText) {
    titleSet(QStringLiteral("test"));
}

void localVclWidgetEditor::build() {
    lineNumberArea_ = new localVclWidgetEditorLineNumberArea(this);
    // The font comes before what is measured in it.
    setFont(localVclFont(fixedPitchFont));
    lineNumberArea_->setFont(font());
    const QFontMetrics metrics(font());
    const int columnWidth = metrics.horizontalAdvance(u'9');
    setTabStopDistance(tabColumns * columnWidth);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setPalette(editorPalette(palette()));
    highlighter_ = new localVclPrgTextHighlighter(document());

    connect(this, &QPlainTextEdit::cursorPositionChanged, this,
            &localVclWidgetEditor::highlightCurrentLine);
    connect(this, &QPlainTextEdit::textChanged, this, &localVclWidgetEditor::textChangedSlot);
    connect(this, &QPlainTextEdit::blockCountChanged, this,
            &localVclWidgetEditor::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, this,
            &localVclWidgetEditor::updateLineNumberArea);
    connect(document(), &QTextDocument::modificationChanged, this,
            &localVclWidgetEditor::modifiedShow);
    installEventFilter(this);

    updateLineNumberAreaWidth(blockCount());
    highlightCurrentLine();
    resize(lineNumberAreaWidth() + columnsShown * columnWidth, linesShown * metrics.lineSpacing());
}

localVclWidgetEditor* localVclWidgetEditor::open(const std::u16string& fileName,
                                                 localString::possibleCodePage codePage) {
    auto editor = std::make_unique<localVclWidgetEditor>(fileName);
    if (!editor->load(fileName, codePage)) {
        return nullptr;
    }
    editor->openWindow();
    return editor.release();
}

void localVclWidgetEditor::openWindow(std::optional<QPoint> place) {
    localVclWindowParameters parameters;
    parameters.title = windowTitle();
    parameters.place = place;
    openedWindow_ = localVclWindowShow(this, parameters);
    modifiedShow();
}

std::u16string localVclWidgetEditor::timeNow() {
    return QDateTime::currentDateTime()
        .toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"))
        .toStdU16String();
}

std::u16string localVclWidgetEditor::text() const {
    return toPlainText().toStdU16String();
}

void localVclWidgetEditor::textSet(std::u16string_view text) {
    lossAgreed_ = 0;
    carriageReturns_.clear();
    for (std::size_t i = text.find(u"\r\n"); i != std::u16string_view::npos;
         i = text.find(u"\r\n", i + 1)) {
        carriageReturns_.push_back(i);
    }
    setPlainText(localVclQString(text));
}

void localVclWidgetEditor::positionShow(std::size_t position) {
    const auto before =
        std::lower_bound(carriageReturns_.begin(), carriageReturns_.end(), position);
    const auto left = static_cast<std::size_t>(before - carriageReturns_.begin());
    const int last = document()->characterCount() - 1;
    QTextCursor cursor = textCursor();
    cursor.setPosition(
        static_cast<int>(std::min(position - left, static_cast<std::size_t>(std::max(last, 0)))));
    setTextCursor(cursor);
}

void localVclWidgetEditor::lineShow(int line) {
    const QTextBlock block = document()->findBlockByNumber(line - 1);
    if (!block.isValid()) {
        return;
    }
    setTextCursor(QTextCursor(block));
    centerCursor();
}

// The title ---------------------------------------------------------------------------------------

void localVclWidgetEditor::titleSet(const QString& title) {
    // The place of the mark of a text that is not saved; a name that holds those signs keeps them.
    const QString marked = QString(title).replace(QLatin1String("[*]"), QLatin1String("[*][*]")) +
                           QLatin1String("[*]");
    setWindowTitle(marked);
    if (openedWindow_ != nullptr) {
        openedWindow_->setWindowTitle(marked);
    }
}

void localVclWidgetEditor::modifiedShow() {
    const bool modified = document()->isModified();
    for (QWidget* const widget : {static_cast<QWidget*>(this), openedWindow_.data()}) {
        if (widget != nullptr && widget->isWindowModified() != modified) {
            widget->setWindowModified(modified);
        }
    }
}

void localVclWidgetEditor::textChangedSlot() {
    modifiedShow();
}

void localVclWidgetEditor::insertFromMimeData(const QMimeData* source) {
    // Where nothing is selected, the middle button brings data of no kind; the base class takes the
    // first kind without a look.
    if (!source->formats().isEmpty()) {
        QPlainTextEdit::insertFromMimeData(source);
    }
}

// Closing -----------------------------------------------------------------------------------------

bool localVclWidgetEditor::windowMayClose() {
    if (!document()->isModified()) {
        return true;
    }
    switch (closeAsk()) {
        case CloseAnswer::save:
            return fileName_.empty() ? saveAsSlot() : saveSlot();
        case CloseAnswer::discard:
            return true;
        case CloseAnswer::cancel:
            break;
    }
    return false;
}

localVclWidgetEditor::CloseAnswer localVclWidgetEditor::closeAsk() {
    QMessageBox box(QMessageBox::Question, localVclQString(fileName_),
                    QStringLiteral("Текст изменён и не сохранён. Сохранить его?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
        case QMessageBox::Save:
            return CloseAnswer::save;
        case QMessageBox::Discard:
            return CloseAnswer::discard;
        default:
            return CloseAnswer::cancel;
    }
}

void localVclWidgetEditor::closeEvent(QCloseEvent* event) {
    traceLine(timeNow() + u" closeEvent", "closeEvent");
    // The editor itself never closes; the window around it does. Meant: so a sub-window of an
    // editor closes by the way of its MDI area.
    event->ignore();
}
