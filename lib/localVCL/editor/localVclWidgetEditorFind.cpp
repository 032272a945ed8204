// Searching for a text, and the jump to a procedure.

#include <QMessageBox>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/scanner/localScanner.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/editor/localDialogFindString.h"
#include "localVCL/editor/localVclWidgetEditor.h"
#include "localVCL/text/localVclText.h"
#include "localVCL/window/localVclOnWindowThread.h"

void localVclWidgetEditor::findText(const QString& text, QTextDocument::FindFlags flags) {
    const QTextCursor cursor = textCursor();
    const int down = verticalScrollBar()->value();
    const int right = horizontalScrollBar()->value();
    if (find(text, flags)) {
        return;
    }
    moveCursor(flags.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    if (find(text, flags)) {
        return;
    }
    setTextCursor(cursor);
    verticalScrollBar()->setValue(down);
    horizontalScrollBar()->setValue(right);
    QMessageBox box(QMessageBox::Information, windowTitle(), QStringLiteral("String not found."),
                    QMessageBox::Ok, this);
    box.exec();
}

void localVclWidgetEditor::findTextSlot() {
    localDialogFindString dialog(findHistory_, findFlags_, this);
    if (dialog.exec() != QDialog::Accepted || dialog.text().isEmpty()) {
        return;
    }
    const std::u16string text = dialog.text().toStdU16String();
    std::erase(findHistory_, text);
    findHistory_.push_back(text);
    findFlags_ = dialog.flags();
    findText(dialog.text(), findFlags_);
}

void localVclWidgetEditor::findTextNextSlot() {
    if (!findHistory_.empty()) {
        findText(localVclQString(findHistory_.back()), findFlags_);
    }
}

// The jump to a procedure -------------------------------------------------------------------------

namespace {

constexpr std::size_t columnText = 0;
constexpr std::size_t columnLine = 1;
constexpr std::size_t columnUpperText = 2;

// Whether a line begins a procedure or function.
bool isProcedureHead(const std::u16string& line) {
    localInterpretatorUTF8::localPosition pos = 0;
    const localUpperName word(localInterpretatorUTF8::scanStringGetNameToken(line, pos));
    const std::u16string_view name = word.view();
    return name == u"FUNCTION" || name == u"ФУНКЦИЯ" || name == u"PROCEDURE" ||
           name == u"ПРОЦЕДУРА";
}

void proceduresCollect(const QTextDocument& document, localValueTable& table) {
    table.columnAdd(u"Descr");
    table.columnAdd(u"NomStr");
    table.columnAdd(u"DescrInUpperCaseForSort");
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const std::u16string line = block.text().toStdU16String();
        if (isProcedureHead(line)) {
            const std::size_t row = table.rowAdd() - 1;
            table.cell(row, columnText).setVal(localText(line));
            table.cell(row, columnLine).setVal(block.blockNumber() + 1.0);
            table.cell(row, columnUpperText).setVal(localText(toUpper(line)));
        }
    }
    table.sort(u"DescrInUpperCaseForSort");
}

}  // namespace

void localVclWidgetEditor::gotoProcedureSlot() {
    turnWork_.ask([this] {
        localValueTable procedures;
        proceduresCollect(*document(), procedures);
        QStringList lines;
        for (std::size_t row = 0; row < procedures.rowsCount(); ++row) {
            lines.append(localVclQString(procedures.cell(row, columnText).wStr));
        }
        // The window may close over the list when a program ends meanwhile.
        const QPointer<localVclWidgetEditor> stands(this);
        int chosen = 0;
        bool accepted = false;
        localVclAskOnWindowThread([&] {
            accepted = localVclQStringListGetItem(QStringLiteral("Выберите (процедуры и функции):"),
                                                  lines, chosen);
        });
        if (!accepted || chosen < 0 || stands.isNull()) {
            return;
        }
        // By its text: of lines that read alike the first is shown, whichever was chosen. Meant.
        const auto row = static_cast<std::size_t>(lines.indexOf(lines.at(chosen)));
        lineShow(static_cast<int>(procedures.cell(row, columnLine).num));
    });
}
